// Runs a sequence of writes on a file and on the plain list of lines: every answer and every byte must be the same.

#include "fuzz/expect.h"
#include "fuzz/input.h"
#include "fuzz/memory_files.h"
#include "fuzz/on_disk.h"
#include "fuzz/profile_model.h"
#include "store/ini_manager.h"
#include "store/profile_batch.h"
#include "store/profile_strings.h"

#include <array>
#include <cerrno>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillon::fuzz {
namespace {

using Kind = MemoryFiles::Kind;

constexpr unsigned kOnDisk = 0xFF;
#ifdef QUILLON_FUZZ_ON_DISK
constexpr bool kTakesDisk = true;
#else
constexpr bool kTakesDisk = false; ///< a hundred runs in memory take as long as one on a disk
#endif

constexpr std::string_view kFile = "/q/Antennas/MAKER.DAT";
constexpr std::string_view kOtherCase = "/q/Antennas/Maker.dat";
constexpr std::string_view kTarget = "/q/Antennas/elsewhere";
constexpr std::array<std::string_view, 3> kTemporaries{"/q/Antennas/.MAKER.DAT.tmp", "/q/Antennas/.Maker.dat.tmp",
                                                       "/q/Antennas/.elsewhere.tmp"};
constexpr std::array kErrors{EIO, ENOSPC, EACCES, ENOMEM, EINTR, EROFS, EDQUOT, EMFILE};

/// One write; without a value the key goes, without a key the section.
struct Edit
{
    std::string section;
    std::optional<std::string> key;
    std::optional<std::string> value;

    [[nodiscard]] bool IsOneLine() const
    {
        const std::string all = section + key.value_or("") + value.value_or("");
        return all.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
    }

    void ApplyTo(ProfileModel& model) const
    {
        if (!key) {
            model.RemoveSection(section);
        } else if (!value) {
            model.RemoveKey(section, *key);
        } else {
            model.Set(section, *key, *value);
        }
    }
};

/// The file through the store, and beside it what it should be.
class Pair
{
public:
    explicit Pair(Input& input);

    void Step(Input record);
    void CheckBytes() const;

private:
    void Write(const Edit& edit);
    void Begin();
    void Commit();
    void ReplaceFromOutside(std::string_view text);
    void CheckValue(const std::string& section, const std::string& key);
    void Settle(bool answer, const ProfileModel& wanted);
    [[nodiscard]] ProfileModel Seen() const;

    MemoryFiles m_files;
    store::ProfileStore m_store{m_files};
    store::INIManager m_manager{m_store};
    std::string_view m_standing = kFile; ///< path that holds the bytes
    bool m_isWritable = true;
    bool m_exists = true;
    ProfileModel m_disk{""};
    std::shared_ptr<store::ProfileBatch> m_batch;
    std::vector<Edit> m_gathered;
};

Pair::Pair(Input& input)
{
    const unsigned state = input.Byte();
    const std::string text = input.FileText();
    m_standing = (state & 3U) == 1 ? kOtherCase : (state & 3U) == 2 ? kTarget : kFile;
    if ((state & 3U) == 2) {
        m_files.Put(kFile, kTarget.substr(kTarget.rfind('/') + 1), Kind::Link);
    }
    if ((state & 4U) == 0) {
        m_files.Put(m_standing, text);
        m_disk = ProfileModel(text);
    } else if (m_standing == kOtherCase) {
        m_standing = kFile;
    }
    if ((state & 8U) != 0) {
        m_files.SetMode(m_standing, 0444);
        m_isWritable = m_files.KindOf(m_standing) == Kind::Missing;
    }
    m_files.SetSettled((state & 16U) == 0);
    m_files.SetChunk((state & 32U) != 0 ? 7 : SIZE_MAX);
    if ((state & 64U) != 0) {
        m_manager.FileName(std::string(kFile));
    }
    m_exists = m_files.KindOf(m_standing) != Kind::Missing;
}

ProfileModel Pair::Seen() const
{
    ProfileModel seen = m_disk;
    for (const Edit& edit : m_gathered) {
        edit.ApplyTo(seen);
    }
    return seen;
}

void Pair::Step(Input record)
{
    const unsigned kind = record.Byte();
    if (kind >= '0' && kind < '0' + 40) { // a fault at one of the calls of the next step
        m_files.FailAt(kind - '0' + 1, kErrors.at(record.Byte() % kErrors.size()));
        return;
    }
    const std::string section(record.Field());
    const std::string key(record.Field());
    switch (kind) {
    case 'w':
        return Write({section, key, std::string(record.Field())});
    case 'k':
        return Write({section, key, std::nullopt});
    case 's':
        return Write({section, std::nullopt, ""});
    case 'c':
        return Write({section, "", ""});
    case 'b':
        return Begin();
    case 'e':
        return Commit();
    case 'd':
        m_batch.reset();
        return m_gathered.clear();
    case 'o':
        return ReplaceFromOutside(record.Rest());
    default:
        return CheckValue(section, key);
    }
}

/// A fault may leave the old text or the new one, and no success may be reported then unless the new one stands.
void Pair::Settle(bool answer, const ProfileModel& wanted)
{
    const std::string_view text = m_files.Get(m_standing);
    const bool isChange = wanted.Text() != m_disk.Text();
    if (m_files.HasFailed()) {
        Expect(text == wanted.Text() || (!answer && text == m_disk.Text()), "the old text stands, or all of the new");
        m_disk = ProfileModel(std::string(text));
        m_exists = m_files.KindOf(m_standing) != Kind::Missing;
    } else {
        m_exists = m_exists || isChange;
        Expect(answer == (m_isWritable || !isChange), "a write succeeds unless the file is read-only");
        m_disk = answer ? wanted : m_disk;
    }
    m_files.FailAt(0, 0);
    CheckBytes();
}

void Pair::Write(const Edit& edit)
{
    if (m_batch) {
        m_files.FailAt(0, 0); // gathering an edit is allowed to fail as a whole
    }
    const bool answer = edit.key
                            ? WritePrivateProfileString(m_store, edit.section, edit.key, edit.value, std::string(kFile))
                            : m_manager.DeleteSection(edit.section, std::string(kFile));
    if (!edit.IsOneLine()) {
        Expect(!answer, "a text of several lines is refused");
        m_files.FailAt(0, 0);
        return;
    }
    if (m_batch) {
        Expect(answer, "an edit is gathered");
        m_gathered.push_back(edit);
        CheckBytes();
        return;
    }
    ProfileModel wanted = m_disk;
    edit.ApplyTo(wanted);
    Settle(answer, wanted);
}

void Pair::Begin()
{
    m_files.FailAt(0, 0);
    try {
        const bool isFirst = !m_batch;
        const auto batch = std::make_shared<store::ProfileBatch>(m_store, kFile);
        Expect(isFirst, "one batch at a time is open on a file");
        m_batch = batch;
    } catch (const std::logic_error&) {
        Expect(m_batch != nullptr, "a first batch can be opened");
    }
}

void Pair::Commit()
{
    if (m_batch) {
        const ProfileModel wanted = Seen();
        const bool answer = m_batch->Commit();
        m_batch.reset();
        m_gathered.clear();
        Settle(answer, wanted);
    }
}

void Pair::ReplaceFromOutside(std::string_view text)
{
    if (m_files.KindOf(m_standing) != Kind::Missing) {
        m_files.Put(m_standing, text);
        m_disk = ProfileModel(std::string(text));
    }
}

void Pair::CheckValue(const std::string& section, const std::string& key)
{
    m_files.FailAt(0, 0);
    const ProfileModel seen = Seen();
    const store::PrivateProfile& profile = m_store.Read(std::string(kFile));
    Expect(profile.Bytes() == seen.Text(), "readers see what is gathered");
    Expect(profile.Value(section, key) == seen.Value(section, key), "a value is that of the first key");
}

void Pair::CheckBytes() const
{
    Expect(m_files.Get(m_standing) == m_disk.Text(), "every byte is as it should be");
    Expect((m_files.KindOf(m_standing) != Kind::Missing) == m_exists, "what changes nothing creates no file");
    for (const std::string_view temporary : kTemporaries) {
        Expect(m_files.KindOf(temporary) == Kind::Missing, "no temporary file stays");
    }
    Expect(m_files.IsAllClosed(), "all files are closed");
}

void Run(Input input)
{
    if (static_cast<unsigned char>(input.Front()) == kOnDisk) {
        static_cast<void>(input.Byte());
        return kTakesDisk ? RunOnDisk(input) : void();
    }
    Pair pair(input);
    for (int count = 0; count < 8 && !input.IsEmpty(); ++count) {
        pair.Step(Input(input.Record()));
    }
    pair.CheckBytes();
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
