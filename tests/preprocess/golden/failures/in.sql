#include first.sql
select 1;
#include missing.sql
#include missing.sql
select 2;
    #include also missing.sql
