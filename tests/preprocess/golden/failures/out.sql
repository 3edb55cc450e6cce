--#include first.sql\r
#include nested missing.sql

select 1;
#include missing.sql
--#include missing.sql
select 2;
    #include also missing.sql
-- error in line 2: Unable to open the included file 'nested missing.sql': No such file or directory
-- error in line 5: Unable to open the included file 'missing.sql': No such file or directory
-- error in line 8: Unable to open the included file 'also missing.sql': No such file or directory
