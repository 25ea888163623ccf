#pragma once

#include <cstdio>

inline int failures = 0;

inline void expect(bool holds, const char* what) {
    if (!holds) {
        ++failures;
        std::fprintf(stderr, "does not hold: %s\n", what);
    }
}
