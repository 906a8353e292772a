#pragma once

#include <cstddef>
#include <memory>

namespace quillon::bench {

struct FileBytes
{
    std::unique_ptr<char[]> data;
    std::size_t size;
};

/// Reads a file with as few calls as that takes. @throws std::system_error
[[nodiscard]] FileBytes ReadPlainly(const char* file);

} // namespace quillon::bench
