#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace quillon::test {

/// Another program that works on the same data files: edits, empties, removes and replaces them, takes rights away, and
/// puts the shipped ones back.
class OutsideProgram
{
public:
    OutsideProgram(std::filesystem::path shipped, std::filesystem::path folder);

    /// Does something to a file. @return what, in a few words.
    std::string Act(std::mt19937& random);

private:
    [[nodiscard]] std::string AnyFile(std::mt19937& random) const;

    std::filesystem::path m_shipped;
    std::filesystem::path m_folder;
};

} // namespace quillon::test
