// The shared library itself; what it exports stands in its rooms.
