/*
#include part.sql
#define &&A hidden
*/
-- #include part.sql
select '#include part.sql', '
#define &&A in a string
';
--#define &&A shown
--#include part.sql /* and what follows\r
select 1 /* &&A */ - &&A; /* open
select &&A; */
select &&A;
