#include nested missing.sql
