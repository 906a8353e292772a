#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace quillon::bench {

struct FileBytes
{
    std::unique_ptr<char[]> data;
    std::size_t size;
};

/// Reads a file with as few calls as that takes. @throws std::system_error
[[nodiscard]] FileBytes ReadPlainly(const char* file);

enum class PlainSync { No, Yes };

/// Puts a text in a file's place by way of another file beside it, with as few calls as that takes: with Yes also to
/// bring both file and folder to the disk. @throws std::system_error
void ReplacePlainly(const std::string& file, std::string_view text, PlainSync sync);

} // namespace quillon::bench
