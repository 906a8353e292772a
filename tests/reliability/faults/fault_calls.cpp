#include "tests/reliability/faults/fault_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace quillon::reliability {

std::string ToText(const Fault& fault)
{
    std::string call = "call " + std::to_string(fault.call) + " ";
    const std::string part = std::to_string(kParts.at(static_cast<std::size_t>(fault.part))) + " %";
    switch (fault.kind) {
    case Fault::Kind::Error:
        return call + ::strerrorname_np(fault.error);
    case Fault::Kind::Short:
        return call + "short at " + part;
    case Fault::Kind::Kill:
        return call + "kill";
    case Fault::Kind::KillPart:
        return call + "kill at " + part;
    }
    return call;
}

FaultCalls::FaultCalls(std::vector<Fault> faults, std::string readOnlyFile)
    : m_faults(std::move(faults))
    , m_readOnlyFile(std::move(readOnlyFile))
{
}

std::optional<Fault> FaultCalls::Next(CallKind kind)
{
    if (m_isKilled) {
        throw Killed();
    }
    m_kinds.push_back(kind);
    const auto fault = std::ranges::find(m_faults, static_cast<int>(m_kinds.size()), &Fault::call);
    return fault == m_faults.end() ? std::nullopt : std::optional(*fault);
}

bool FaultCalls::Fails()
{
    const std::optional<Fault> fault = Next(CallKind::Other);
    if (!fault || fault->kind == Fault::Kind::Short) {
        return false;
    }
    if (fault->kind != Fault::Kind::Error) {
        m_isKilled = true;
        throw Killed();
    }
    errno = fault->error;
    return true;
}

std::size_t FaultCalls::PartOf(std::size_t length, const std::optional<Fault>& fault) const noexcept
{
    if (!fault || length == 0) {
        return length;
    }
    const std::size_t part = length * static_cast<std::size_t>(kParts.at(static_cast<std::size_t>(fault->part))) / 100;
    return fault->kind == Fault::Kind::Short ? std::max<std::size_t>(part, 1) : part;
}

int FaultCalls::Open(const char* path, int flags, mode_t mode)
{
    return Fails() ? -1 : FileCalls::Open(path, flags, mode);
}

ssize_t FaultCalls::Read(int descriptor, void* buffer, std::size_t length)
{
    const std::optional<Fault> fault = Next(CallKind::Read);
    if (fault && fault->kind == Fault::Kind::Error) {
        errno = fault->error;
        return -1;
    }
    if (fault && fault->kind != Fault::Kind::Short) {
        m_isKilled = true;
        throw Killed();
    }
    return FileCalls::Read(descriptor, buffer, PartOf(length, fault));
}

ssize_t FaultCalls::Write(int descriptor, const void* buffer, std::size_t length)
{
    const std::optional<Fault> fault = Next(CallKind::Write);
    if (fault && fault->kind == Fault::Kind::Error) {
        errno = fault->error;
        return -1;
    }
    const bool isDeadly = fault && fault->kind != Fault::Kind::Short;
    const std::size_t part = isDeadly && fault->kind == Fault::Kind::Kill ? 0 : PartOf(length, fault);
    const ssize_t count = FileCalls::Write(descriptor, buffer, part);
    if (isDeadly) {
        m_isKilled = true;
        throw Killed();
    }
    return count;
}

int FaultCalls::Stat(const char* path, struct stat* status)
{
    return Fails() ? -1 : FileCalls::Stat(path, status);
}

int FaultCalls::Lstat(const char* path, struct stat* status)
{
    return Fails() ? -1 : FileCalls::Lstat(path, status);
}

int FaultCalls::Fstat(int descriptor, struct stat* status)
{
    return Fails() ? -1 : FileCalls::Fstat(descriptor, status);
}

int FaultCalls::Fchmod(int descriptor, mode_t mode)
{
    return Fails() ? -1 : FileCalls::Fchmod(descriptor, mode);
}

int FaultCalls::Fsync(int descriptor)
{
    if (!Fails()) {
        return FileCalls::Fsync(descriptor);
    }
    m_hasFailedBehindRename = m_hasFailedBehindRename || m_isRenamed;
    return -1;
}

int FaultCalls::Close(int descriptor)
{
    // Closing is done in destructors, which must not throw, and changes no file: it is done even behind the end.
    const int result = FileCalls::Close(descriptor);
    try {
        return Fails() ? -1 : result;
    } catch (const Killed&) {
        return -1;
    }
}

int FaultCalls::Rename(const char* from, const char* to)
{
    const int result = Fails() ? -1 : FileCalls::Rename(from, to);
    m_isRenamed = m_isRenamed || result == 0;
    return result;
}

int FaultCalls::Unlink(const char* path)
{
    return Fails() ? -1 : FileCalls::Unlink(path);
}

ssize_t FaultCalls::ReadLink(const char* path, char* buffer, std::size_t length)
{
    return Fails() ? -1 : FileCalls::ReadLink(path, buffer, length);
}

int FaultCalls::MayWrite(const char* path)
{
    if (Fails()) {
        return -1;
    }
    if (path == m_readOnlyFile) {
        errno = EACCES;
        return -1;
    }
    return FileCalls::MayWrite(path);
}

int FaultCalls::List(const char* path, std::vector<store::FolderEntry>& entries)
{
    return Fails() ? -1 : FileCalls::List(path, entries);
}

} // namespace quillon::reliability
