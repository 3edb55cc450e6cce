-- Release 4.2: tables, procedures, rights
--#define &&SCHEMA sales
--#define &&OWNER app_owner
use warehouse;
--#include tables.sql\r
create table sales.orders (
    id int not null primary key,
    placed_at datetime -- in the time zone of &&SCHEMA
);

--#include "procedures.sql" -- after the tables\r
--#define &&PREFIX usp_
--#include <rights.sql>\r
grant execute on schema::sales to app_owner;

create procedure sales.usp_orders as select * from sales.orders;

grant select on sales.orders to reporting;
--#include tables.sql
