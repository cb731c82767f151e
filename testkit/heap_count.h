#pragma once
// Heap allocations made so far by this process. Only executables that link
// testkit/counting_new.cpp, which replaces the global operator new, count.

#include <cstdint>

int64_t HeapAllocations();
