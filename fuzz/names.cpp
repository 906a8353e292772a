// Takes any bytes for the names of makers, models and systems: what is refused touches nothing, what is taken is found
// again under its name, and no call ever leaves the program's folder.

#include "engine/arithmetic_error.h"
#include "fuzz/expect.h"
#include "fuzz/folder_model.h"
#include "fuzz/input.h"
#include "fuzz/memory_files.h"
#include "fuzz/profile_model.h"
#include "store/antenna_files.h"
#include "store/code_page.h"
#include "store/entry_name.h"
#include "store/maker_name.h"
#include "store/stale_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <string>
#include <vector>

namespace quillon::fuzz {
namespace {

using store::NameFault;
using Names = std::vector<std::string>;
using std::chrono::year_month_day;

constexpr year_month_day kToday{std::chrono::year(2026), std::chrono::month(2), std::chrono::day(9)};

/// The characters that code page 1252 has where its bytes are no character's code.
constexpr std::array<std::string_view, 27> kOwn{"€", "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š", "‹", "Œ", "Ž", "‘",
                                                "’", "“", "”", "•", "–", "—", "˜", "™", "š", "›", "œ", "ž", "Ÿ"};

/// Length of the code page's character at the front of a text, 0 when there is none.
std::size_t CharacterLength(std::string_view text)
{
    if (static_cast<unsigned char>(text.front()) < 0x80) {
        return 1;
    }
    const auto* const own = std::ranges::find_if(kOwn, [text](std::string_view one) { return text.starts_with(one); });
    if (own != kOwn.end()) {
        return own->size();
    }
    if (text.size() < 2) {
        return 0;
    }
    const auto lead = static_cast<unsigned char>(text[0]);
    const unsigned code = unsigned{lead} << 8U | static_cast<unsigned char>(text[1]);
    constexpr std::array<unsigned, 5> kUndefined{0xC281, 0xC28D, 0xC28F, 0xC290, 0xC29D};
    const bool isLatin = (code >= 0xC2A0 && code <= 0xC2BF) || (code >= 0xC380 && code <= 0xC3BF);
    return isLatin || std::ranges::find(kUndefined, code) != kUndefined.end() ? 2 : 0;
}

/// Number of bytes that a UTF-8 text takes in a file; nothing when the code page lacks one of its characters.
std::optional<std::size_t> BytesInFile(std::string_view text)
{
    std::size_t count = 0;
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0) {
            return std::nullopt;
        }
        text.remove_prefix(length);
        ++count;
    }
    return count;
}

void CheckCodePage(std::string_view text)
{
    Expect(store::FromUtf8(store::ToUtf8(text)) == std::string(text), "every byte comes back");
    const std::optional<std::string> bytes = store::FromUtf8(text);
    const std::optional<std::size_t> count = BytesInFile(text);
    Expect(bytes.has_value() == count.has_value(), "the code page has a text or not");
    Expect(!bytes || (bytes->size() == *count && store::ToUtf8(*bytes) == text), "a text comes back");
}

bool HasControl(std::string_view text)
{
    return std::ranges::any_of(text,
                               [](char character) { return (character >= 0 && character < 32) || character == 127; });
}

/// Whether a text can stand in a file as a name: one line, in the code page, and read back as it was.
bool IsEntryName(std::string_view name, std::size_t longest)
{
    const std::optional<std::string> bytes = store::FromUtf8(name);
    return !name.empty() && bytes && !HasControl(name) && bytes->size() <= longest &&
           ProfileModel::Unquote(ProfileModel::Strip(*bytes)) == *bytes;
}

/// The folders with the editor's commands on them.
struct Editor
{
    MemoryFiles files;
    std::shared_ptr<store::ProfileStore> store = std::make_shared<store::ProfileStore>(files);
    store::ProgramFolder folder{"/q/Quillon"};
    store::AntennaFiles commands{folder, *store};
    store::Catalogue catalogue{folder, store};
    bool hasLeftovers = false; ///< temporary files lay there from the start
};

/// Path of a maker's file; for a name that can have none, of a file that is not there.
std::string PathOf(const Editor& editor, const std::string& maker)
{
    return FileOf(editor.files, "/q/Antennas/", IsPlainName(maker) ? maker : "none");
}

void CheckMaker(Editor& editor, const std::string& maker)
{
    const bool isTaken = editor.commands.BrandFileExists(maker);
    const bool isName = IsEntryName(maker, 25) && IsPlainName(maker);
    const std::size_t count = editor.files.Count();
    Expect(store::IsMakerName(maker) == isName, "a maker's name is taken or not");
    Expect(editor.commands.CreateBrandFile(maker) == isName, "a maker's file is made for a good name");
    Expect(editor.files.Count() == count + (isName && !isTaken ? 1 : 0), "one file is made, and none twice");
    if (isName) {
        const Names makers = editor.catalogue.LoadAntennaMakers();
        Expect(editor.commands.BrandFileExists(maker), "a new maker has a file");
        // A folder of that name stands in a new maker's way, and is no maker.
        const bool isFile = !isTaken || editor.files.KindOf(PathOf(editor, maker)) == MemoryFiles::Kind::File;
        Expect(!isFile ||
                   std::ranges::any_of(makers, [&](const auto& one) { return ProfileModel::IsSame(one, maker); }),
               "a new maker is listed");
    }
}

/// Whether something else than a file stands where the new text of a file would be put together.
bool IsBlocked(const Editor& editor, const std::string& path)
{
    const std::size_t name = path.rfind('/') + 1;
    const MemoryFiles::Kind kind = editor.files.KindOf(path.substr(0, name) + "." + path.substr(name) + ".tmp");
    return kind != MemoryFiles::Kind::File && kind != MemoryFiles::Kind::Missing;
}

void CheckModel(Editor& editor, const std::string& maker, const std::string& typed, store::IfModelFound ifFound)
{
    const bool isName = IsEntryName(typed, 254);
    Expect((store::EntryNameFault(typed) == NameFault::None) == isName, "a model's name is taken or not");
    const std::string model = store::FromUtf8(typed).value_or(typed);
    const std::string path = PathOf(editor, maker);
    const std::string before(editor.files.Get(path));
    const MemoryFiles::Kind kind = editor.files.KindOf(path);
    const bool isBlocked = IsBlocked(editor, path);
    const bool isMet = ifFound == store::IfModelFound::Refuse && editor.commands.FirstModelWith(maker, model);
    const bool answer = editor.commands.AddModel(maker, model, ifFound);
    const ProfileModel after(std::string(editor.files.Get(path)));
    Expect(answer || after.Text() == before, "what is refused leaves the file alone");
    Expect(!answer || !IsEntryName(typed, 254) || after.Answer(model, "GainType", "") == "dBd",
           "a new model has a gain type");
    Expect(!answer || !isMet, "a model like one that is there waits for the user");
    const bool isFile = kind == MemoryFiles::Kind::File || kind == MemoryFiles::Kind::Missing;
    Expect(answer || isMet || !isName || !isFile || isBlocked || !store::IsMakerName(maker), "a good name is taken");
    if (answer && isName && after.Sections().size() < 8) {
        const std::optional<std::string> found = editor.commands.FirstModelWith(maker, model);
        Expect(found && !found->empty(), "a new model is found by its name");
    }
}

std::optional<std::int16_t> Gain(Input& input)
{
    const float decibels = input.Float();
    try {
        const std::int16_t tenths = store::ToGainTenths(decibels);
        Expect(std::abs(tenths - double{decibels} * 10) <= 0.5, "a gain is the nearest tenth");
        return tenths;
    } catch (const engine::ArithmeticError&) {
        Expect(!(std::abs(decibels) < 3276), "a gain of this size can be saved");
        return std::nullopt;
    }
}

store::ModelFigures Figures(Input& input)
{
    store::ModelFigures figures;
    figures.GainType = (input.Byte() & 1U) != 0 ? "dBi" : "dBd";
    const unsigned covered = static_cast<unsigned>(input.Short()) & 0x3FFFU;
    for (std::size_t place = 0; place < figures.GainTenths.size(); ++place) {
        if ((covered >> place & 1U) != 0) {
            figures.GainTenths.at(place) = Gain(input);
        }
    }
    return figures;
}

void CheckBands(Editor& editor, const std::string& maker, const std::string& model, const store::ModelFigures& figures)
{
    if (!editor.commands.SaveChanges(maker, model, figures)) {
        return;
    }
    const ProfileModel file(std::string(editor.files.Get(PathOf(editor, maker))));
    Expect(file.Answer(model, "GainType", "") == figures.GainType, "the gain type is saved");
    for (std::size_t place = 0; place < store::kBandSuffixes.size(); ++place) {
        const std::string key = "Gain" + std::string(store::kBandSuffixes.at(place));
        const std::optional<std::int16_t> gain = figures.GainTenths.at(place);
        Expect(gain ? file.Answer(model, key, "") == std::to_string(*gain)
                    : file.Keys(model).empty() || std::ranges::count(file.Keys(model), key) <= 1 ||
                          file.Value(model, key).has_value(),
               "a gain is saved, and one that is not covered goes");
    }
}

void CheckIndex(Editor& editor, const std::string& maker)
{
    const bool exists = editor.commands.BrandFileExists(maker);
    const std::string models(editor.files.Get(PathOf(editor, maker)));
    const bool answer = editor.commands.UpdateIndex(maker, kToday);
    Expect(exists || !answer, "only a maker with a file is in the index");
    if (answer && store::IsMakerName(maker)) {
        const store::IndexEntry entry = editor.commands.ReadIndex(maker);
        Expect(entry.NumEntries == std::to_string(ListedSections(ProfileModel(models)).size()), "models are counted");
        Expect(entry.LastModified == "02/09/2026", "the day is today");
    }
}

void CheckPaths(const std::string& executable, const std::string& name)
{
    const store::ProgramFolder folder{std::filesystem::path(executable)};
    Expect(folder.DataSetPath(name).string().starts_with(folder.Path().string()), "data sets lie in the folder");
    if (IsPlainName(name)) {
        Expect(folder.AntennaFile(name).parent_path() == folder.AntennaFolder(), "a maker's file lies in its folder");
        Expect(folder.CoaxFile(name).parent_path() == folder.CoaxFolder(), "a cable's file lies in its folder");
    }
}

/// One of a command's calls fails: it says so, or all is done; no half of a file stays either way.
template <class Command>
void Disturb(Editor& editor, const std::string& maker, unsigned failing, const Command& command)
{
    const std::string before(editor.files.Get(PathOf(editor, maker)));
    editor.files.FailAt(failing, failing % 2 == 0 ? EIO : ENOSPC);
    const bool answer = command();
    const bool hasFailed = editor.files.HasFailed();
    editor.files.FailAt(0, 0);
    const std::string after(editor.files.Get(PathOf(editor, maker)));
    if (hasFailed && !answer && after != before) {
        Expect(command() && editor.files.Get(PathOf(editor, maker)) == after, "the old text stands, or all of the new");
    }
    for (const std::string& name : editor.files.NamesIn("/q/Antennas/")) {
        Expect(!name.starts_with('.') || !name.ends_with(".DAT.tmp") || editor.hasLeftovers, "no temporary file stays");
    }
}

void CheckFaults(Editor& editor, const std::string& maker, const std::string& typed, const store::ModelFigures& figures,
                 unsigned failing)
{
    const std::string model = store::FromUtf8(typed).value_or(typed);
    store::AntennaFiles& commands = editor.commands;
    Disturb(editor, maker, failing, [&] { return commands.CreateBrandFile(maker); });
    Disturb(editor, maker, failing, [&] { return commands.AddModel(maker, model, store::IfModelFound::Replace); });
    Disturb(editor, maker, failing, [&] { return commands.SaveChanges(maker, model, figures); });
    Disturb(editor, maker, failing, [&] { return commands.UpdateIndex(maker, kToday); });
}

Names FilesOf(const Editor& editor)
{
    Names files = editor.files.NamesIn("/q/");
    std::erase_if(files, [&editor](const std::string& name) {
        return editor.files.KindOf("/q/" + name) != MemoryFiles::Kind::File;
    });
    return files;
}

/// Of all files only temporary ones that the program itself could have left may go, and no links.
void CheckSweep(Editor& editor)
{
    editor.files.Put("/q/.QuillonSystems.dat.tmp", "half a fi");
    Names gone = FilesOf(editor);
    const std::size_t others = editor.files.Count() - gone.size();
    store::RemoveStaleFiles(editor.files, editor.folder);
    const Names left = FilesOf(editor);
    Expect(editor.files.Count() - left.size() == others, "neither links nor folders are swept away");
    std::erase_if(gone, [&left](const std::string& name) { return std::ranges::find(left, name) != left.end(); });
    Expect(!gone.empty(), "a temporary file is swept away");
    for (const std::string& name : gone) {
        Expect(name.at(name.rfind('/') + 1) == '.' && name.ends_with(".tmp"), "nothing but temporary files goes");
    }
}

void CheckAll(Editor& editor, const std::string& maker, const std::string& model, const store::ModelFigures& figures)
{
    const bool isAgreed = figures.GainType == "dBd";
    CheckMaker(editor, maker);
    CheckModel(editor, maker, model, isAgreed ? store::IfModelFound::Replace : store::IfModelFound::Refuse);
    CheckBands(editor, maker, model, figures);
    CheckIndex(editor, maker);
    static_cast<void>(editor.catalogue.LoadAntennas(maker));
    static_cast<void>(editor.catalogue.LoadCableTypes(model));
    static_cast<void>(editor.commands.ReadIndex(model));
}

void Run(Input input)
{
    Editor editor;
    const store::ModelFigures figures = Figures(input);
    const std::string maker(input.Record());
    const std::string model(input.Record());
    input = PutFiles(input, editor.files);
    const unsigned failing = input.Byte() % 40;
    const Names names = editor.files.NamesIn("/q/Antennas/");
    editor.hasLeftovers = std::ranges::any_of(names, [](const auto& name) { return name.ends_with(".tmp"); });
    CheckCodePage(maker);
    CheckCodePage(model);
    CheckPaths(model, maker);
    if (failing != 0) {
        CheckFaults(editor, maker, model, figures, failing);
    } else {
        CheckAll(editor, maker, model, figures);
    }
    CheckSweep(editor);
    Expect(editor.files.IsAllClosed(), "all files are closed");
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
