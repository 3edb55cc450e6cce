#define &&ENV test
#define &&SERVER db-&&ENV
#define &&HOST &&SERVER
#include &&ENV.sql
-- connect to &&HOST
select '&&HOST' as host, '&&ENV' as environment;
