// Loads saved pairs out of any file, writes what could be loaded under another name and loads it again.

#include "fuzz/expect.h"
#include "fuzz/input.h"
#include "fuzz/memory_files.h"
#include "fuzz/profile_model.h"
#include "store/saved_systems.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

namespace quillon::fuzz {
namespace {

using Fault = store::DamagedValue::Fault;

const std::string kFile = "/q/QuillonSystems.dat";

class NoNotifier : public engine::Notifier
{
public:
    void Inform(std::string_view text, std::string_view /*title*/) override
    {
        Expect(!text.empty(), "a message says something");
    }
};

/// The lines of a saved pair that people could have made; the pair is named "Home".
constexpr std::array kLines{"[SavedSystems]",
                            "System:1=Home",
                            "System:2=",
                            "[Home]",
                            "System1AntennaBrand=KLM",
                            "System1AntennaModel=KT-34A",
                            "System1AntennaGain=7.1",
                            "System1CoaxBrand=BELDEN",
                            "System1CoaxType=2",
                            "System1CoaxModel=9913",
                            "System1CoaxLoss=0.75",
                            "System1CoaxLength=62.5",
                            "System1Connectors=4",
                            "System1Frequency=7.23",
                            "System1XmitPower=1500",
                            "System1VSWR=1.1",
                            "System2AntennaBrand=",
                            "System2AntennaModel=\"V\"",
                            "System2AntennaGain=-1.2",
                            "System2CoaxBrand=TIMES MICROWAVE",
                            "System2CoaxType=0",
                            "System2CoaxModel=LMR-400",
                            "System2CoaxLoss=1e-3",
                            "System2CoaxLength=100",
                            "System2Connectors=2",
                            "System2Frequency=432.1",
                            "System2XmitPower=5",
                            "System2VSWR=3.9"};

/// The text of the file. A record with 0x1C in front changes kLines: a line's place and what to put there, closed by
/// 0x1F, or with "=" in front what to put behind its equals sign. So few bytes reach into the middle of a whole pair.
std::string FileText(Input& input)
{
    if (input.Front() != '\x1C') {
        return input.FileText();
    }
    Input changes(input.Record());
    static_cast<void>(changes.Byte());
    std::vector<std::string> lines(kLines.begin(), kLines.end());
    while (!changes.IsEmpty()) {
        const std::size_t place = changes.Byte() % lines.size();
        const std::string_view line = changes.Field();
        const std::size_t kept = line.starts_with('=') ? lines[place].find('=') : 0;
        lines[place] = lines[place].substr(0, kept).append(line);
    }
    std::string text;
    for (const std::string& line : lines) {
        text.append(line).append("\r\n");
    }
    return text;
}

/// The file through the program's own classes.
struct Saved
{
    explicit Saved(std::string_view text)
    {
        files.Put(kFile, text);
        Expect(systems.DataFileCheck(), "the file is found");
    }

    MemoryFiles files;
    NoNotifier notifier;
    store::ProfileStore store{files};
    store::ReadWrite readWrite{store::ProgramFolder("/q/Quillon"), store, notifier};
    store::SavedSystems systems{readWrite, store};
};

std::string ValueOf(const ProfileModel& file, const std::string& name, const std::string& key)
{
    return file.Answer(name, key, "").substr(0, 254);
}

std::vector<std::string> NamesIn(const ProfileModel& file)
{
    std::vector<std::string> names;
    while (true) {
        const std::string name = ValueOf(file, "SavedSystems", "System:" + std::to_string(names.size() + 1));
        if (name.empty()) {
            return names;
        }
        names.push_back(name);
    }
}

/// Whether a text is a number and nothing else, as people write it.
bool IsNumber(std::string text)
{
    text = ProfileModel::StripBlanks(text);
    text.erase(0, text.starts_with('+') || text.starts_with('-') ? 1 : 0);
    const std::size_t mark = text.find_first_of("eE");
    const std::string mantissa = text.substr(0, mark);
    std::string exponent = mark == std::string::npos ? "0" : text.substr(mark + 1);
    exponent.erase(0, exponent.starts_with('+') || exponent.starts_with('-') ? 1 : 0);
    constexpr const char* kDigits = "0123456789";
    const bool isMantissa = mantissa.find_first_not_of("0123456789.") == std::string::npos &&
                            mantissa.find('.') == mantissa.rfind('.') &&
                            mantissa.find_first_of(kDigits) != std::string::npos;
    return isMantissa && !exponent.empty() && exponent.find_first_not_of(kDigits) == std::string::npos;
}

/// The first of the figures that must be there and is none, worked out from the lines alone.
std::string FirstDamaged(const ProfileModel& file, const std::string& name)
{
    for (const std::string system : {"System1", "System2"}) {
        for (const std::string key : {"AntennaGain", "CoaxType", "CoaxLoss", "CoaxLength"}) {
            if (!IsNumber(ValueOf(file, name, system + key))) {
                return system + key;
            }
        }
    }
    return "";
}

void CheckFigures(const engine::SystemData& data)
{
    for (const float figure :
         {data.AntennaGain, data.CoaxLoss, data.CoaxLength, data.Frequency, data.XmitPower, data.VSWR}) {
        Expect(std::isfinite(figure), "a loaded figure is finite");
    }
}

/// Whether a text comes back from a file as it went in.
bool IsPlain(const std::string& text)
{
    return ProfileModel::Unquote(ProfileModel::Strip(text)) == text && text.find('\0') == std::string::npos;
}

bool IsPlain(const store::SystemNames& names)
{
    return IsPlain(names.antennaBrand) && IsPlain(names.antennaModel) && IsPlain(names.coaxBrand) &&
           IsPlain(names.coaxModel);
}

/// The pair without the blanks in front of its names: quotes in a file keep them, and no saving does.
store::SystemPair WithTrimmedNames(store::SystemPair pair)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        engine::SystemData& data = pair[system];
        data.AntennaBrand = data.AntennaBrand.Trimmed();
        data.AntennaModel = data.AntennaModel.Trimmed();
        data.CoaxBrand = data.CoaxBrand.Trimmed();
        data.CoaxModel = data.CoaxModel.Trimmed();
    }
    return pair;
}

bool IsWritable(const std::string& name)
{
    return name.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos && name.size() <= 254;
}

/// A pair that was written under a name that reads back is there as it was.
void CheckRoundTrip(Saved& saved, const store::SystemPair& pair, const std::string& name)
{
    const std::string before(saved.files.Get(kFile));
    const store::SavedSystems::Slot slot = saved.systems.SystemExists(name);
    Expect(!saved.systems.Write({slot.number + 1, slot.exists}, name, pair),
           "a place that is not the name's is refused");
    const bool answer = saved.systems.Write(slot, name, pair);
    const bool isPlain =
        IsPlain(store::NamesOf(pair[engine::SystemId::One])) && IsPlain(store::NamesOf(pair[engine::SystemId::Two]));
    if (!answer) {
        Expect(saved.files.Get(kFile) == before || !IsWritable(name), "what is not saved leaves the file alone");
        Expect(!isPlain || !IsWritable(name), "a pair that was loaded can be saved");
        return;
    }
    const std::vector<std::string> names = saved.systems.Names();
    if (!isPlain || !IsPlain(name) || name.empty()) {
        return;
    }
    Expect(static_cast<int>(names.size()) == slot.number, "the list ends behind the entry written");
    Expect(ProfileModel::IsSame(names.back(), name), "the name stands in the list");
    const auto again = saved.systems.ReadPair(name);
    const auto* const read = std::get_if<store::SystemPair>(&again);
    Expect(read != nullptr && *read == WithTrimmedNames(pair), "what was saved is loaded again");
    Expect(saved.systems.SystemExists(name) == store::SavedSystems::Slot{slot.number, true}, "it has its place");
}

void CheckPair(Saved& saved, const ProfileModel& file, const std::string& name, const std::string& newName,
               bool isWritten)
{
    const auto loaded = saved.systems.ReadPair(name);
    const std::string damaged = FirstDamaged(file, name);
    if (const auto* const fault = std::get_if<store::DamagedValue>(&loaded)) {
        Expect(fault->fault != Fault::NoNumber || fault->key == damaged, "the first text that is no number is told");
        Expect(fault->fault == Fault::NotComputable || fault->value == ValueOf(file, name, fault->key),
               "a damaged value is shown as it stands");
        return;
    }
    Expect(damaged.empty(), "figures that must be there are numbers");
    const auto& pair = std::get<store::SystemPair>(loaded);
    const engine::PerSystem<store::SystemNames> names = saved.systems.ReadNames(name);
    for (const engine::SystemId system : engine::kBothSystems) {
        CheckFigures(pair[system]);
        Expect(names[system] == store::NamesOf(pair[system]), "names are the pair's");
    }
    if (isWritten) {
        CheckRoundTrip(saved, pair, newName);
    }
}

void CheckDirect(Saved& saved, const std::string& section, const std::string& key, std::string_view value)
{
    Expect(saved.readWrite.IniRead(section, key) ==
               ValueOf(ProfileModel(std::string(saved.files.Get(kFile))), section, key),
           "a value comes as it stands");
    const std::int32_t answer = saved.readWrite.IniWrite(section, key, value);
    Expect((answer == -1) == (key.size() > 255 || value.size() > 255), "a long text is refused");
}

void Run(Input input)
{
    const std::string text = FileText(input);
    const std::string newName(input.Record());
    Saved saved(text);
    const ProfileModel file(text);
    const std::vector<std::string> names = saved.systems.Names();
    Expect(names == NamesIn(file), "the list ends before the first empty name");
    std::string name(input.Record());
    if (name.empty() && !names.empty()) {
        name = names.front();
    }
    const unsigned part = input.Byte() % 8; // writing takes ten times as long as loading
    if (part < 6) {
        CheckPair(saved, file, name, newName, part == 0);
    } else {
        const std::string section(input.Field());
        const std::string key(input.Field());
        CheckDirect(saved, section, key, input.Field());
        static_cast<void>(saved.readWrite.DataFileCheck(input.Field()));
    }
    Expect(saved.files.IsAllClosed(), "all files are closed");
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
