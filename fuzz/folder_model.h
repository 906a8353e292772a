#pragma once

#include "fuzz/input.h"
#include "fuzz/memory_files.h"
#include "fuzz/profile_model.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillon::fuzz {

/// Puts the files of an input into the folders: records "kind name US text", closed by a byte that is no kind. The
/// kind is a capital for Antennas and a small letter for Coax: A a file, L a link, P a pipe, D a folder.
/// @return what is left of the input.
[[nodiscard]] Input PutFiles(Input input, MemoryFiles& files);

/// Names of sections and keys as they come through the buffer of 2048 characters that lists are read with.
[[nodiscard]] std::vector<std::string> ListedSections(const ProfileModel& file);
[[nodiscard]] std::vector<std::string> ListedKeys(const ProfileModel& file, const std::string& section);

/// Whether a text can be a maker's part of a file name.
[[nodiscard]] bool IsPlainName(std::string_view name);

/// Makers of a folder, sorted. @param folder  with its slash.
[[nodiscard]] std::vector<std::string> MakersIn(const MemoryFiles& files, const std::string& folder);

/// Path of a maker's file as it is spelled.
[[nodiscard]] std::string FileOf(const MemoryFiles& files, const std::string& folder, const std::string& maker);

} // namespace quillon::fuzz
