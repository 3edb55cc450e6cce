// What the framework raises.
#pragma once

#include <stdexcept>

// An argument outside what the operation takes.
class CInvalidArgException : public std::invalid_argument
{
public:
    using std::invalid_argument::invalid_argument;
};
