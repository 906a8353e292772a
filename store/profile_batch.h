#pragma once

#include "store/profile_store.h"

#include <filesystem>
#include <string>

namespace quillon::store {

/// While it lives, edits of one file through its store are gathered, and readers see them as if they were written.
/// Commit replaces the file once, with the same bytes that writing key by key would leave; without it nothing is
/// written. What was read meanwhile may have shaped the edits: when any file could not be read, Commit fails. Edits are
/// applied to the file as it stands at Commit, so a change made meanwhile from outside is kept.
class ProfileBatch
{
public:
    /// @throws std::logic_error when a batch is open on the file already.
    ProfileBatch(ProfileStore& store, const std::filesystem::path& file);
    ~ProfileBatch();
    ProfileBatch(const ProfileBatch&) = delete;
    ProfileBatch& operator=(const ProfileBatch&) = delete;

    /// Ends the batch. @return false when the file could not be written, or a file could not be read since the batch
    /// was opened; it then stands as before.
    [[nodiscard]] bool Commit();

private:
    ProfileStore& m_store;
    std::string m_path;
    bool m_isOpen = true;
};

} // namespace quillon::store
