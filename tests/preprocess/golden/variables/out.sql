select &&EARLY;
--#define &&EARLY too late
select &&EARLY;
--#define &&AB x
select xC, x, 'x', "x", &&A;
--#define &&AB again
#define &&TWO xx
--#define &&LONG 12
--#define &&PAIR 12x
select &&TWO, 12x;
#define X a&&b
select &&AB;
