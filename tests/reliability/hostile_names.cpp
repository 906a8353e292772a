// Hostile names through everything that makes a path or a line of a file of them: hostile_names --count N --seed S
//
// No call on a file leaves the folders of the data. What is taken reads back from the disk as it was given, what is
// refused leaves no trace.
#include "store/antenna_files.h"
#include "store/catalogue.h"
#include "store/code_page.h"
#include "store/entry_name.h"
#include "store/maker_name.h"
#include "store/saved_systems.h"
#include "tests/reliability/hostile_name_source.h"
#include "tests/reliability/hostile_path_recorder.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/sample_pair.h"
#include "tests/support/temp_folder.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <locale>
#include <memory>
#include <string>
#include <vector>

namespace quillon::reliability {
namespace {

namespace fs = std::filesystem;
using store::NameFault;

constexpr std::size_t kMostFindings = 50;
constexpr auto kReplace = store::IfModelFound::Replace;

/// A name as it can be printed and typed again.
std::string Printable(std::string_view name)
{
    std::string text;
    for (const char character : name.substr(0, 200)) {
        const auto code = static_cast<unsigned char>(character);
        std::array<char, 5> escaped{};
        std::snprintf(escaped.data(), escaped.size(), "\\x%02X", static_cast<unsigned>(code));
        text += code >= 0x20 && code < 0x7F ? std::string(1, character) : escaped.data();
    }
    return name.size() > 200 ? text + "... of " + std::to_string(name.size()) + " bytes" : text;
}

class HostileNames
{
public:
    explicit HostileNames(std::uint64_t seed)
        : m_seed(seed)
    {
        m_files.Put("program/Antennas/ANTENNAS.ZEP", "");
        m_files.Put("program/Coax/BELDEN.DAT", "");
        m_files.Put("program/QuillonSystems.dat", "");
        m_files.Put("outside/canary.DAT", "[OUTSIDE]\r\n");
        // Names that a path may be led astray by, when it is put together of a name that holds a separator.
        fs::create_directory_symlink("../../outside", m_antennas / "OUTSIDE");
        fs::create_directory_symlink("../..", m_antennas / "UP");
        m_standing = Names();
    }

    /// @return whether nothing was found.
    bool Run(std::size_t count)
    {
        HostileNameSource source(m_seed);
        for (m_number = 0; m_number < count && m_findings < kMostFindings; ++m_number) {
            m_name = source.Next();
            TryMaker();
            TryModel();
            TrySystem();
            TryReading();
            JudgePaths();
        }
        Check(m_files.Get("outside/canary.DAT") == "[OUTSIDE]\r\n", "the file outside is another one");
        Check(m_files.Names() == std::vector<std::string>{"outside", "program"},
              "something new beside the program folder");
        Report();
        return m_findings == 0;
    }

private:
    void TryMaker()
    {
        const bool isName = store::MakerNameFault(m_name) == NameFault::None;
        Check(m_antennaFiles.CreateBrandFile(m_name) == isName, "a maker is taken or refused against its name's fault");
        if (isName) {
            ++m_makers;
            Check(store::Catalogue(m_folder).LoadAntennaMakers() == std::vector{m_name},
                  "a maker reads back as another");
            Check(m_antennaFiles.BrandFileExists(m_name), "a maker's file is not found");
            Check(m_antennaFiles.AddModel(m_name, "MODEL", kReplace) && m_antennaFiles.UpdateIndex(m_name, kToday),
                  "a maker's files cannot be written");
            store::ProfileStore fresh;
            const store::IndexEntry entry = store::AntennaFiles(m_folder, fresh).ReadIndex(m_name);
            Check(entry == store::IndexEntry{"1", "11/21/2026", "11/21/2026"}, "a maker's entry of the index is lost");
        } else {
            Check(!m_antennaFiles.AddModel(m_name, "MODEL", kReplace) ||
                      store::FileNameFault(m_name) == NameFault::None,
                  "a model of a maker that is no name is written");
        }
        CleanUp();
    }

    void TryModel()
    {
        const std::string model = store::FromUtf8(m_name).value_or(m_name);
        const bool isName = store::EntryNameFault(store::ToUtf8(model)) == NameFault::None;
        Check(m_antennaFiles.AddModel("MAKER", model, kReplace) == isName,
              "a model is taken or refused against its name's fault");
        if (isName) {
            ++m_models;
            const store::Catalogue catalogue(m_folder);
            Check(catalogue.LoadAntennas("MAKER") == std::vector{model}, "a model reads back as another");
            Check(catalogue.LoadAntennaGainType("MAKER", model) == "dBd", "a model's gain type is lost");
        } else {
            Check(fs::file_size(m_folder.AntennaFile("MAKER")) == 0, "a model that is refused leaves something behind");
        }
        CleanUp();
    }

    void TrySystem()
    {
        const std::string name = store::FromUtf8(m_name).value_or(m_name);
        const bool isName = store::EntryNameFault(store::ToUtf8(name)) == NameFault::None;
        if (!isName || !m_saved.DataFileCheck()) {
            Check(!isName, "the file of the saved systems is gone");
            return;
        }
        ++m_systems;
        Check(m_saved.Write(m_saved.SystemExists(name), name, m_pair), "a pair is not written");
        store::ProfileStore fresh;
        store::ReadWrite readWrite(m_folder, fresh, m_notifier);
        store::SavedSystems saved(readWrite, fresh);
        Check(saved.DataFileCheck() && saved.Names() == std::vector{name}, "a pair's name reads back as another");
        // Without the question whether it can be computed with, which would take longer than everything else here.
        const auto read = store::ReadPair(fresh.Read(readWrite.DataFilePath()), name);
        const auto* pair = std::get_if<store::SystemPair>(&read);
        Check(pair != nullptr && store::PairEntries(*pair) == store::PairEntries(m_pair),
              "a pair reads back as another");
        CleanUp();
    }

    /// Names as they come from a saved pair that somebody else has written: nobody has judged them.
    void TryReading()
    {
        store::BandTable table;
        std::array<float, 9> losses{};
        static_cast<void>(m_catalogue.LoadAntennas(m_name));
        static_cast<void>(m_catalogue.LoadAntennaGain(m_name, m_name, table));
        static_cast<void>(m_catalogue.LoadCableTypes(m_name));
        static_cast<void>(m_catalogue.LoadCableLoss(m_name, m_name, losses));
        static_cast<void>(m_catalogue.LoadCableKFactors(m_name, m_name, losses));
        static_cast<void>(m_antennaFiles.SaveChanges(m_name, m_name, {"dBd", {}}));
        static_cast<void>(m_antennaFiles.UpdateIndex(m_name, kToday));
        static_cast<void>(m_antennaFiles.ReadIndex(m_name));
        static_cast<void>(m_antennaFiles.FirstModelWith(m_name, m_name));
        static_cast<void>(m_readWrite.DataFileCheck(m_name));
        static_cast<void>(m_readWrite.IniRead(m_name, m_name));
        m_notifier.Clear();
        CleanUp();
    }

    void JudgePaths()
    {
        for (; m_strays < m_calls.Strays().size(); ++m_strays) {
            Check(false, "a call outside the data, on " + Printable(m_calls.Strays()[m_strays]));
        }
    }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const fs::path& folder : {m_antennas, m_folder.CoaxFolder(), m_folder.Path()}) {
            for (const auto& entry : fs::directory_iterator(folder)) {
                names.push_back(entry.path().string());
            }
        }
        return names;
    }

    /// The folders as they were before the first name; only files that stood there may have changed.
    void CleanUp()
    {
        for (const std::string& name : Names()) {
            if (std::find(m_standing.begin(), m_standing.end(), name) == m_standing.end()) {
                Check(name.ends_with(".DAT"), "left behind: " + Printable(name));
                fs::remove(name);
            }
        }
        for (const fs::path& file : {m_folder.AntennaIndex(), m_folder.DataSetPath("Systems")}) {
            if (fs::file_size(file) > 0) {
                fs::resize_file(file, 0);
            }
        }
    }

    void Check(bool holds, const std::string& what)
    {
        if (!holds) {
            ++m_findings;
            std::printf("seed %llu, name %zu, \"%s\": %s\n", static_cast<unsigned long long>(m_seed), m_number,
                        Printable(m_name).c_str(), what.c_str());
        }
    }

    void Report() const
    {
        std::printf(
            "%zu names, seed %llu: %zu makers, %zu models and %zu systems taken and read back, %zu calls with a path, "
            "%zu opens outside the data folder, %zu findings\n",
            m_number, static_cast<unsigned long long>(m_seed), m_makers, m_models, m_systems, m_calls.Judged(),
            m_calls.Strays().size(), m_findings);
    }

    static constexpr std::chrono::year_month_day kToday{std::chrono::year(2026), std::chrono::month(11),
                                                        std::chrono::day(21)};

    std::uint64_t m_seed;
    support::TempFolder m_files;
    store::ProgramFolder m_folder{(m_files / "program/Quillon").string()};
    fs::path m_antennas = m_folder.AntennaFolder();
    HostilePathRecorder m_calls{{m_folder.Path().string(), m_antennas.string(), m_folder.CoaxFolder().string()}};
    std::shared_ptr<store::ProfileStore> m_store = std::make_shared<store::ProfileStore>(m_calls);
    support::RecordingNotifier m_notifier;
    store::Catalogue m_catalogue{m_folder, m_store};
    store::AntennaFiles m_antennaFiles{m_folder, *m_store};
    store::ReadWrite m_readWrite{m_folder, *m_store, m_notifier};
    store::SavedSystems m_saved{m_readWrite, *m_store};
    const store::SystemPair m_pair = support::SamplePair();
    std::vector<std::string> m_standing;
    std::string m_name;
    std::size_t m_number = 0;
    std::size_t m_makers = 0;
    std::size_t m_models = 0;
    std::size_t m_systems = 0;
    std::size_t m_strays = 0;
    std::size_t m_findings = 0;
};

/// The number behind an option of the command line.
std::uint64_t Option(const std::vector<std::string>& arguments, const std::string& name, std::uint64_t otherwise)
{
    const auto found = std::find(arguments.begin(), arguments.end(), name);
    return found == arguments.end() || found + 1 == arguments.end() ? otherwise : std::stoull(found[1]);
}

} // namespace
} // namespace quillon::reliability

int main(int argc, char* argv[])
{
    using namespace quillon::reliability;
    const std::vector<std::string> arguments(argv, argv + argc);
    HostileNames names(Option(arguments, "--seed", 1));
    return names.Run(Option(arguments, "--count", 10000)) ? 0 : 1;
}
