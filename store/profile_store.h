#pragma once

#include "store/file_reader.h"
#include "store/profile_edit.h"

#include <cstddef>
#include <filesystem>
#include <list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillon::store {

/// Reads and writes data files, with the last few held in memory: as long as a file's stamp on disk stays the same it
/// is not read again. A change from outside is seen at the next call. File names match without regard to letter case.
///
/// A file that cannot be read looks empty to readers. What is written must not rest on that: once a file could not be
/// read while a batch is open, the store writes nothing more until the batch has ended, and the batch fails.
class ProfileStore
{
public:
    ProfileStore();
    /// @param calls  must outlive the store.
    explicit ProfileStore(FileCalls& calls);
    ProfileStore(const ProfileStore&) = delete;
    ProfileStore& operator=(const ProfileStore&) = delete;
    ~ProfileStore() = default;

    [[nodiscard]] FileCalls& Calls() const noexcept { return m_calls; }

    /// The file's document, empty for a file that is missing or cannot be read; with the edits of an open batch.
    /// Valid until the next call on the store.
    [[nodiscard]] const PrivateProfile& Read(const std::string& file);

    /// PrivateProfile::SectionNames of what Read gives; of a long file that is not in memory only the beginning is
    /// read, when that is enough.
    [[nodiscard]] std::string SectionNames(const std::string& file, std::size_t enough);

    /// Changes a file on disk, or gathers the edit while a batch on the file is open. A file that would stay as it is
    /// is not written, one that is missing is created.
    /// @return false when the file could not be written; it then stands as before.
    bool Edit(const std::string& file, const ProfileEdit& edit);

    /// How often something could not be read so far. What was read while the number stayed the same is what the files
    /// hold, and may be shown to be changed and written back.
    [[nodiscard]] std::size_t FailedReads() const noexcept { return m_failedReads; }

    /// Creates a file empty unless its name stands in the folder. @throws std::system_error when it cannot be created,
    /// or the folder cannot be searched for it.
    void CreateIfMissing(const std::string& file);

private:
    friend class ProfileBatch;

    struct Location
    {
        std::string path;
        FileStatus status;
    };

    struct Document
    {
        std::string path;
        FileStamp stamp;
        bool isSettled = true; ///< false: a further change could have left the same stamp
        PrivateProfile profile;

        [[nodiscard]] bool IsOf(const FileStamp& now) const noexcept { return isSettled && stamp == now; }
    };

    struct Batch
    {
        bool isSpoilt = false; ///< something could not be read since it was opened
        std::vector<ProfileEdit> edits;
        std::optional<Document> document; ///< the file with the edits, as far as somebody asked for it
    };

    [[nodiscard]] Location Locate(const std::string& file) const;
    const PrivateProfile& ReadAt(const Location& location);
    /// What is held of the file as it is now, or the end.
    [[nodiscard]] std::list<Document>::iterator FindHeld(const Location& location);
    [[nodiscard]] std::optional<PrivateProfile> ReadBeginning(const Location& location, std::size_t most);
    [[nodiscard]] std::optional<Document> Take(const Location& location);
    const PrivateProfile& Hold(Document document);
    const PrivateProfile& ReadInBatch(Batch& batch, const Location& location);
    void NoteFailedRead();
    [[nodiscard]] bool IsSpoilt() const;
    [[nodiscard]] bool Rewrite(const Location& location, std::span<const ProfileEdit> edits);

    std::string BeginBatch(const std::string& file);
    void DropBatch(const std::string& path) noexcept;
    [[nodiscard]] bool CommitBatch(const std::string& path);

    FileCalls m_systemCalls;
    FileCalls& m_calls;
    std::list<Document> m_held; ///< the one used last stands first
    std::map<std::string, Batch> m_batches;
    std::size_t m_failedReads = 0;
    const PrivateProfile m_nothing;
};

} // namespace quillon::store
