#define &&PREFIX usp_
#include <rights.sql>
create procedure &&SCHEMA.&&PREFIXorders as select * from &&SCHEMA.orders;
