select &&EARLY;
#define &&EARLY too late
select &&EARLY;
#define &&AB x
select &&ABC, &&AB, '&&AB', "&&AB", &&A;
#define &&AB again
#define &&TWO &&AB&&AB
#define &&LONG 12
#define &&PAIR &&LONG&&AB
select &&TWO, &&PAIR;
#define X a&&b
select &&AB;
