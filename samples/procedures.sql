/*
    Order handling, server side.
    Each procedure answers 0 when it did what it says, and raises otherwise.
    Messages are shown to the clerk as they stand – keep them short, keep them polite.
*/
set ansi_nulls on
set quoted_identifier on
go

if object_id('dbo.usp_ReserveLine', 'P') is not null
    drop procedure dbo.usp_ReserveLine
go

create procedure dbo.usp_ReserveLine
    @OrderId     bigint,
    @LineNo      smallint,
    @WarehouseId smallint = 1
as
begin
    set nocount on;

    declare @ArticleId bigint, @Wanted decimal(12,3), @Taken decimal(12,3);

    select @ArticleId = article_id, @Wanted = quantity
    from   dbo.sales_order_line
    where  order_id = @OrderId and line_no = @LineNo;

    if @@rowcount = 0
    begin
        raiserror(N'Order %I64d has no line %d.', 16, 1, @OrderId, @LineNo);
        return 1;
    end;

    begin transaction;

    -- The fullest bin first: fewer walks for the pickers.
    with candidate as (
        select top (1) quantity, reserved
        from   dbo.stock with (updlock, rowlock)
        where  warehouse_id = @WarehouseId
        and    article_id = @ArticleId
        and    quantity - reserved >= @Wanted
        order  by quantity - reserved desc
    )
    update candidate
    set    reserved = reserved + @Wanted,
           @Taken = @Wanted;

    if @Taken is null
    begin
        rollback transaction;
        raiserror(N'Not enough on hand – please try another warehouse.', 16, 2);
        return 2;
    end;

    commit transaction;
    return 0;
end
go

if object_id('dbo.usp_ShipOrder', 'P') is not null
    drop procedure dbo.usp_ShipOrder
go

create procedure dbo.usp_ShipOrder
    @OrderId bigint,
    @Clerk   nvarchar(60)
as
begin
    set nocount on;
    set xact_abort on;

    declare @Status varchar(10);
    select @Status = status from dbo.sales_order where order_id = @OrderId;

    if @Status is null
        throw 50001, N'No such order.', 1;
    if @Status <> 'picked'
        throw 50002, N'Only a picked order can be shipped.', 1;

    begin try
        begin transaction;

        update s
        set    s.quantity = s.quantity - l.quantity,
               s.reserved = s.reserved - l.quantity
        from   dbo.stock s
        join   dbo.sales_order_line l on l.article_id = s.article_id
        where  l.order_id = @OrderId
        and    s.reserved >= l.quantity;

        update dbo.sales_order
        set    status = 'shipped'
        where  order_id = @OrderId;

        insert into dbo.order_log (order_id, happened_at, clerk, remark)
        values (@OrderId, sysutcdatetime(), @Clerk, N'shipped ✓');

        commit transaction;
    end try
    begin catch
        if @@trancount > 0
            rollback transaction;
        throw;
    end catch;

    return 0;
end
go

grant execute on dbo.usp_ReserveLine to clerks
grant execute on dbo.usp_ShipOrder   to clerks
go
