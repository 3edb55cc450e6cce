/* Dunning, Adaptive Server. /* Batches end at go. */ */
use billing
go
if exists (select 1 from sysobjects where name = "dun_customers" and type = "P")
    drop procedure dun_customers
go
create procedure dun_customers @days int = 30
as
    declare @found int
    select @found = count(*) from invoice where due < dateadd(dd, -@days, getdate());
    if @found = 0
    begin
        print "nothing to dun; well done"
        return 0;
    end
    begin transaction
    update invoice set dunned = dunned + 1 where due < dateadd(dd, -@days, getdate());
    commit transaction
/* the procedure ends with its batch */
go
exec dun_customers @days = 14
go 2
use [old billing]
select "go
", case dunned when 0 then 'no' else 'yes' end from invoice
go
