#pragma once

#include <cstdio>
#include <cstdlib>

namespace quillon::fuzz {

/// Ends the run as a finding unless a condition holds.
inline void Expect(bool holds, const char* what, const char* file = __builtin_FILE(), int line = __builtin_LINE())
{
    if (!holds) {
        static_cast<void>(std::fprintf(stderr, "%s:%d: not so: %s\n", file, line, what));
        std::abort();
    }
}

} // namespace quillon::fuzz
