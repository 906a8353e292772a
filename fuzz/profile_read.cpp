// Reads and lists any text as a data file, and compares every answer with the plain list of lines.

#include "fuzz/expect.h"
#include "fuzz/folder_model.h"
#include "fuzz/input.h"
#include "fuzz/memory_files.h"
#include "fuzz/profile_model.h"
#include "store/ini_manager.h"
#include "store/profile_strings.h"

#include <string>
#include <vector>

namespace quillon::fuzz {
namespace {

constexpr std::size_t kAll = SIZE_MAX - 1;
constexpr std::size_t kLongestValue = 254;
const std::string kFile = "/q/QuillonSystems.dat";

using Names = std::vector<std::string>;

struct Query
{
    explicit Query(Input& input)
        : section(input.Field())
        , key(input.Field())
        , missing(input.Field())
        , buffer(input.Byte() % 80, '?')
    {
    }

    std::string section;
    std::string key;
    std::string missing;
    std::string buffer;
};

void CheckDocument(const store::PrivateProfile& profile, const ProfileModel& model, const Query& query)
{
    const Names keys = model.Keys(query.section);
    const auto value = profile.Value(query.section, query.key);
    Expect(value == model.Value(query.section, query.key), "a value is that of the first key in the first section");
    Expect(profile.KeyNames(query.section, kAll) == ProfileModel::Joined(keys, kAll), "all keys are listed");
    const std::vector<store::ProfileEntry> entries = profile.Entries(query.section);
    Expect(entries.size() == keys.size(), "each entry has its key");
    for (std::size_t place = 0; place < entries.size(); ++place) {
        Expect(entries[place].name == keys[place], "entries come in the order of the file");
    }
}

void CheckBuffer(store::ProfileStore& store, const std::string& expected, Query& query, store::OptionalText section,
                 store::OptionalText key)
{
    const std::size_t count = GetPrivateProfileString(store, section, key, query.missing, query.buffer, kFile);
    Expect(std::string_view(query.buffer).substr(0, count) == expected, "a buffer takes what fits");
    Expect(query.buffer.empty() || query.buffer.at(count) == '\0', "a buffer is closed");
}

void CheckBuffers(store::ProfileStore& store, const ProfileModel& model, Query& query)
{
    const std::size_t size = query.buffer.size();
    const std::string value = model.Answer(query.section, query.key, query.missing);
    CheckBuffer(store, value.substr(0, size - std::min<std::size_t>(size, 1)), query, query.section, query.key);
    CheckBuffer(store, ProfileModel::Joined(model.Keys(query.section), size), query, query.section, {});
    CheckBuffer(store, ProfileModel::Joined(model.Sections(), size), query, {}, query.key);
}

void CheckManager(const store::INIManager& manager, const ProfileModel& model, const Query& query)
{
    const std::string value = model.Answer(query.section, query.key, query.missing).substr(0, kLongestValue);
    Expect(manager.GetValue(query.section, query.key, query.missing) == ProfileModel::StripBlanks(value),
           "a value comes without the blanks around it");
    Expect(manager.GetAllKeys(query.section, kFile) == ListedKeys(model, query.section), "keys as listed");
    Expect(manager.GetAllSections(kFile) == ListedSections(model), "sections as listed");
}

/// A long file's first names are found without reading all of it.
void CheckFirstNames(MemoryFiles& files, const ProfileModel& model, std::size_t enough)
{
    const std::string all = ProfileModel::Joined(model.Sections(), kAll);
    const std::string first = store::ProfileStore(files).SectionNames(kFile, enough);
    Expect(first.substr(0, enough) == all.substr(0, enough), "the first names are those of the whole file");
}

void Run(Input input)
{
    const std::string text = input.FileText();
    const ProfileModel model(text);
    const store::PrivateProfile profile(text);
    Expect(profile.SectionNames(kAll) == ProfileModel::Joined(model.Sections(), kAll), "all sections are listed");

    MemoryFiles files;
    files.Put(kFile, text);
    store::ProfileStore store(files);
    store::INIManager manager(store);
    manager.FileName(kFile);
    const unsigned part = input.Byte() % 3;
    Query query(input);
    if (part == 0) {
        CheckDocument(profile, model, query);
    } else if (part == 1) {
        CheckBuffers(store, model, query);
    } else {
        CheckManager(manager, model, query);
    }
    CheckFirstNames(files, model, query.buffer.size() % 8);
    Expect(files.Get(kFile) == text, "reading changes nothing");
    Expect(files.IsAllClosed(), "all files are closed");
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
