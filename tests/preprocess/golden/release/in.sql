-- Release 4.2: tables, procedures, rights
#define &&SCHEMA sales
#define &&OWNER app_owner
use warehouse;
#include tables.sql
#include "procedures.sql" -- after the tables
grant select on &&SCHEMA.orders to reporting;
#include tables.sql
