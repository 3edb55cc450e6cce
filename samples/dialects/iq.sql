// Column statistics, IQ. Both comment marks are in use.
create table sales_fact (day date, article int, amount numeric(12,2)); -- by day
create procedure fill_days(in first_day date, in last_day date)
begin
  declare d date;
  set d = first_day;
  while d <= last_day loop
    insert into sales_fact (day, article, amount) values (d, 0, 0);
    set d = dateadd(day, 1, d);
  end loop;
  if d is null then
    message 'no days; nothing done';
  end if;
end;
call fill_days('2024-01-01', '2024-01-31');
go
select [day], sum(amount) // the days
from sales_fact group by [day];
