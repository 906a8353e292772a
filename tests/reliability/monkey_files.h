#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quillon::test {

/// Looks on at everything that happens to the files of a program folder, and tells what nobody gave a command for.
class FileWatch
{
public:
    /// @param folder  with Antennas, Coax and Help in it
    explicit FileWatch(std::filesystem::path folder);
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;
    ~FileWatch();

    /// A command was given that may write these files and no others. @param files  relative, letter case aside
    void Permit(const std::vector<std::string>& files);
    /// The command is over.
    void Revoke();

    [[nodiscard]] bool IsPermitted() const noexcept { return !m_permitted.empty(); }

    /// To be called after each event. @return what happened to files without a command for it, if anything did.
    [[nodiscard]] std::optional<std::string> Check();

    /// Takes what has happened since the last check as another program's doing.
    void Accept();

    /// Compares the bytes of all files with what they were after the last permitted change.
    /// @return the files that differ, one a line.
    [[nodiscard]] std::string CompareBytes() const;

private:
    [[nodiscard]] std::vector<std::string> Changes() const;
    [[nodiscard]] std::optional<std::string> Judge(const std::string& file);
    void TakeBytes(const std::string& file);

    std::filesystem::path m_folder;
    int m_descriptor;
    std::map<int, std::string> m_folders; ///< by their watch, with a slash at the end
    std::set<std::string> m_permitted;    ///< in lower case
    std::map<std::string, std::string> m_bytes;
};

} // namespace quillon::test
