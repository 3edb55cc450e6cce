--#define &&ENV test
--#define &&SERVER db-test
--#define &&HOST db-test
--#include test.sql\r
set noexec off; -- &&ENV only
print 'running against db-test';

-- connect to &&HOST
select 'db-test' as host, 'test' as environment;
