#pragma once

#include "store/file_calls.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon::reliability {

/// What happens to one call.
struct Fault
{
    enum class Kind {
        Error,   ///< it fails
        Short,   ///< a read or write gets no further than a part
        Kill,    ///< the process ends before it
        KillPart ///< the process ends when a part of a write is done
    };

    int call; ///< number, from 1
    Kind kind;
    int error = 0; ///< of Error
    int part = 0;  ///< of Short and KillPart: place in kParts
};

/// How much a read or write gets done, as a share of its length in percent; at least one byte of a short one.
inline constexpr std::array kParts{0, 1, 25, 50, 75, 99};

[[nodiscard]] std::string ToText(const Fault& fault);

enum class CallKind { Read, Write, Other };

/// The process has ended: thrown past everything, and no call changes a file any more.
struct Killed
{
};

/// The system's calls with faults at chosen numbers.
class FaultCalls : public store::FileCalls
{
public:
    /// @param readOnlyFile  that may not be written, whoever asks; empty for none.
    FaultCalls(std::vector<Fault> faults, std::string readOnlyFile);

    [[nodiscard]] bool IsKilled() const noexcept { return m_isKilled; }

    /// What the calls made were, in their order.
    [[nodiscard]] const std::vector<CallKind>& Kinds() const noexcept { return m_kinds; }

    /// Whether a fault hit what cannot be taken back: the sync of the folder behind a replacement.
    [[nodiscard]] bool HasFailedBehindRename() const noexcept { return m_hasFailedBehindRename; }

    /// No faults from now on.
    void Calm() noexcept { m_faults.clear(); }

    int Open(const char* path, int flags, mode_t mode) override;
    ssize_t Read(int descriptor, void* buffer, std::size_t length) override;
    ssize_t Write(int descriptor, const void* buffer, std::size_t length) override;
    int Stat(const char* path, struct stat* status) override;
    int Lstat(const char* path, struct stat* status) override;
    int Fstat(int descriptor, struct stat* status) override;
    int Fchmod(int descriptor, mode_t mode) override;
    int Fsync(int descriptor) override;
    int Close(int descriptor) override;
    int Rename(const char* from, const char* to) override;
    int Unlink(const char* path) override;
    ssize_t ReadLink(const char* path, char* buffer, std::size_t length) override;
    int MayWrite(const char* path) override;
    int List(const char* path, std::vector<store::FolderEntry>& entries) override;

private:
    /// Counts a call. @return whether it fails. @throws Killed
    bool Fails();
    std::optional<Fault> Next(CallKind kind);
    [[nodiscard]] std::size_t PartOf(std::size_t length, const std::optional<Fault>& fault) const noexcept;

    std::vector<Fault> m_faults;
    std::string m_readOnlyFile;
    std::vector<CallKind> m_kinds;
    bool m_isKilled = false;
    bool m_isRenamed = false;
    bool m_hasFailedBehindRename = false;
};

} // namespace quillon::reliability
