#include "store/profile_store.h"

#include "store/file_names.h"
#include "store/safe_write.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace quillon::store {
namespace {

constexpr std::size_t kMostDocuments = 8;
/// A longer file stays only while no other one is asked for.
constexpr std::size_t kMostBytes = std::size_t{4} * 1024 * 1024;
/// Names of models are some 20 times shorter than what stands in their sections.
constexpr std::size_t kBytesPerCharacter = 20;

std::size_t Size(const FileStamp& stamp)
{
    return static_cast<std::size_t>(stamp.size);
}

/// File times move in steps of the kernel's timer: two changes within one step leave the same time.
bool IsSettled(const FileStamp& stamp)
{
    using namespace std::chrono;
    constexpr nanoseconds kLongestStep = milliseconds(20);
    const nanoseconds now = system_clock::now().time_since_epoch();
    return nanoseconds(stamp.changed) + kLongestStep < now;
}

/// What several edits come to, as a change of the whole text; nothing when they take one another back.
std::optional<TextChange> ChangeByAll(std::span<const ProfileEdit> edits, const PrivateProfile& profile)
{
    PrivateProfile changed(profile.Bytes());
    for (const ProfileEdit& edit : edits) {
        Apply(changed, edit);
    }
    if (changed.Bytes() == profile.Bytes()) {
        return std::nullopt;
    }
    return TextChange{0, profile.Bytes().size(), std::string(changed.Bytes())};
}

} // namespace

ProfileStore::ProfileStore()
    : m_calls(m_systemCalls)
{
}

ProfileStore::ProfileStore(FileCalls& calls)
    : m_calls(calls)
{
}

const PrivateProfile& ProfileStore::Read(const std::string& file)
{
    return ReadAt(Locate(file));
}

std::string ProfileStore::SectionNames(const std::string& file, std::size_t enough)
{
    const Location location = Locate(file);
    const std::size_t most = kBytesPerCharacter * std::min(enough, kLargestFile);
    const bool isLong = location.status.state == FileState::Regular && Size(location.status.stamp) > most;
    if (isLong && !m_batches.contains(location.path) && FindHeld(location) == m_held.end()) {
        const std::optional<PrivateProfile> beginning = ReadBeginning(location, most);
        std::string names = beginning ? beginning->SectionNames(enough) : std::string();
        if (names.size() >= enough) {
            return names;
        }
    }
    return ReadAt(location).SectionNames(enough);
}

const PrivateProfile& ProfileStore::ReadAt(const Location& location)
{
    if (const auto batch = m_batches.find(location.path); batch != m_batches.end()) {
        return ReadInBatch(batch->second, location);
    }
    if (const auto held = FindHeld(location); held != m_held.end()) {
        m_held.splice(m_held.begin(), m_held, held); // mostly it is there: key after key of a file is asked for
        return held->profile;
    }
    if (location.status.state == FileState::Missing) {
        return m_nothing;
    }
    std::optional<Document> document = Take(location);
    if (!document) {
        NoteFailedRead();
        return m_nothing;
    }
    return Hold(std::move(*document));
}

bool ProfileStore::Edit(const std::string& file, const ProfileEdit& edit)
{
    const Location location = Locate(file);
    if (location.status.state == FileState::Refused) {
        NoteFailedRead();
    }
    if (location.status.state == FileState::Refused || IsSpoilt()) {
        return false;
    }
    const auto batch = m_batches.find(location.path);
    if (batch == m_batches.end()) {
        return Rewrite(location, {&edit, 1});
    }
    batch->second.edits.push_back(edit);
    if (batch->second.document) {
        Apply(batch->second.document->profile, edit);
    }
    return true;
}

void ProfileStore::CreateIfMissing(const std::string& file)
{
    const NameState state = FindName(m_calls, file).state;
    if (state == NameState::Unknown) {
        NoteFailedRead();
        throw std::system_error(std::make_error_code(std::errc::io_error), file);
    }
    if (state == NameState::Missing) {
        CreateEmptyFile(m_calls, file);
    }
}

ProfileStore::Location ProfileStore::Locate(const std::string& file) const
{
    const FileStatus status = InspectFile(m_calls, file.c_str());
    if (status.state != FileState::Missing) {
        return {file, status};
    }
    const FoundName found = FindName(m_calls, file);
    if (found.state == NameState::Unknown) {
        return {file, {FileState::Refused, {}}};
    }
    return {found.path.string(), InspectFile(m_calls, found.path.c_str())};
}

std::list<ProfileStore::Document>::iterator ProfileStore::FindHeld(const Location& location)
{
    return std::ranges::find_if(m_held, [&location](const Document& document) {
        const FileStatus& status = location.status;
        return status.state == FileState::Regular && document.path == location.path && document.IsOf(status.stamp);
    });
}

std::optional<PrivateProfile> ProfileStore::ReadBeginning(const Location& location, std::size_t most)
{
    Bytes bytes;
    if (ReadInspectedFile(m_calls, location.path.c_str(), bytes, most).state != FileState::Regular) {
        return std::nullopt;
    }
    // What may go on behind the part is no line yet.
    bytes.Cut(bytes.View().find_last_of("\r\n") + 1);
    return PrivateProfile(std::move(bytes));
}

std::optional<ProfileStore::Document> ProfileStore::Take(const Location& location)
{
    if (location.status.state == FileState::Refused) {
        return std::nullopt;
    }
    Document document;
    const auto held = std::find_if(m_held.begin(), m_held.end(),
                                   [&location](const Document& candidate) { return candidate.path == location.path; });
    if (held != m_held.end()) {
        document = std::move(*held);
        m_held.erase(held);
        if (document.IsOf(location.status.stamp)) {
            return document;
        }
    }
    Bytes bytes;
    FileStatus found;
    if (location.status.state == FileState::Regular) {
        found = ReadInspectedFile(m_calls, location.path.c_str(), bytes);
    }
    if (found.state == FileState::Refused) {
        return std::nullopt;
    }
    return Document{location.path, found.stamp, IsSettled(found.stamp), PrivateProfile(std::move(bytes))};
}

const PrivateProfile& ProfileStore::Hold(Document document)
{
    m_held.push_front(std::move(document));
    std::size_t documents = 0;
    std::size_t bytes = 0;
    const auto isTooMuch = [&documents, &bytes](const Document& held) {
        bytes += held.profile.Bytes().size();
        ++documents;
        return documents > kMostDocuments || (documents > 1 && bytes > kMostBytes);
    };
    m_held.erase(std::find_if(m_held.begin(), m_held.end(), isTooMuch), m_held.end());
    return m_held.front().profile;
}

const PrivateProfile& ProfileStore::ReadInBatch(Batch& batch, const Location& location)
{
    const bool isRefused = location.status.state == FileState::Refused;
    if (isRefused || !batch.document || !batch.document->IsOf(location.status.stamp)) {
        batch.document = Take(location);
        for (const ProfileEdit& edit : batch.edits) {
            if (batch.document) {
                Apply(batch.document->profile, edit);
            }
        }
    }
    if (!batch.document) {
        NoteFailedRead();
        return m_nothing;
    }
    return batch.document->profile;
}

void ProfileStore::NoteFailedRead()
{
    ++m_failedReads;
    for (auto& [path, batch] : m_batches) {
        batch.isSpoilt = true;
    }
}

bool ProfileStore::IsSpoilt() const
{
    return std::ranges::any_of(m_batches, [](const auto& item) { return item.second.isSpoilt; });
}

bool ProfileStore::Rewrite(const Location& location, std::span<const ProfileEdit> edits)
{
    std::optional<Document> document = Take(location);
    if (!document) {
        return false;
    }
    // The usual single change is made in the writing only: no second copy of the text is needed for it.
    const PrivateProfile& profile = document->profile;
    const std::optional<TextChange> change =
        edits.size() == 1 ? ChangeBy(edits.front(), profile) : ChangeByAll(edits, profile);
    if (!change) {
        Hold(std::move(*document));
        return true;
    }
    const std::size_t size = profile.Bytes().size() - change->length + change->text.size();
    return size <= kLargestFile && ReplaceFile(m_calls, location.path, change->Parts(profile.Bytes()));
}

std::string ProfileStore::BeginBatch(const std::string& file)
{
    Location location = Locate(file);
    const auto [batch, isNew] = m_batches.try_emplace(location.path);
    if (!isNew) {
        throw std::logic_error("a batch is open on " + location.path);
    }
    batch->second.isSpoilt = location.status.state == FileState::Refused;
    return std::move(location.path);
}

void ProfileStore::DropBatch(const std::string& path) noexcept
{
    m_batches.erase(path);
}

bool ProfileStore::CommitBatch(const std::string& path)
{
    const bool isSpoilt = IsSpoilt();
    const std::vector<ProfileEdit> edits = std::move(m_batches.at(path).edits);
    m_batches.erase(path);
    return !isSpoilt && Rewrite(Locate(path), edits);
}

} // namespace quillon::store
