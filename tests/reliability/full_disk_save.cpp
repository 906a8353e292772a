// Runs one writing command on a program folder, as the windows do it: quillon_reliability_save FOLDER COMMAND
// Ends with 0 when the command reports success, with 1 when it reports failure.

#include "store/antenna_files.h"
#include "store/ini_manager.h"
#include "store/saved_systems.h"
#include "store/stale_files.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <string_view>

namespace {

using namespace quillon;

constexpr std::string_view kMaker = "aaa";
constexpr std::string_view kModel = "beam";

class SilentNotifier : public engine::Notifier
{
public:
    void Inform(std::string_view /*text*/, std::string_view /*title*/) override {}
};

struct Data
{
    explicit Data(const std::filesystem::path& path)
        : folder(path / "Quillon")
        , readWrite(folder, files, notifier)
        , saved(readWrite, files)
        , antennas(folder, files)
    {
        saved.DataFileCheck();
    }

    bool SavePair(std::string_view name)
    {
        store::SystemPair pair;
        for (const engine::SystemId system : engine::kBothSystems) {
            pair[system] = store::ResetSystem();
            pair[system].XmitPower = 250;
        }
        return saved.Write(saved.SystemExists(name), name, pair);
    }

    bool Delete(bool isWholeModel)
    {
        store::INIManager file(files);
        file.FileName(folder.AntennaFile(kMaker).string());
        return isWholeModel ? file.DeleteSection(kModel, file.FileName())
                            : file.DeleteKey(kModel, "GainType", file.FileName());
    }

    store::ProgramFolder folder;
    store::ProfileStore files;
    SilentNotifier notifier;
    store::ReadWrite readWrite;
    store::SavedSystems saved;
    store::AntennaFiles antennas;
};

struct Command
{
    std::string_view name;
    bool (*run)(Data& data);
};

constexpr std::array kCommands{
    Command{"save-new", [](Data& data) { return data.SavePair("new pair"); }},
    Command{"save-over", [](Data& data) { return data.SavePair("home"); }},
    Command{"add-maker", [](Data& data) { return data.antennas.CreateBrandFile("New maker"); }},
    Command{"add-model",
            [](Data& data) { return data.antennas.AddModel(kMaker, "new model", store::IfModelFound::Refuse); }},
    Command{"save-bands",
            [](Data& data) {
                return data.antennas.SaveChanges(kMaker, kModel, {"dBi", {10, 20}});
            }},
    Command{"index",
            [](Data& data) {
                using namespace std::chrono;
                return data.antennas.UpdateIndex(kMaker, 2001y / February / 3);
            }},
    // Not a save, but what each start of the program begins with.
    Command{"start",
            [](Data& data) {
                store::RemoveStaleFiles(data.files.Calls(), data.folder);
                return true;
            }},
    Command{"delete-key", [](Data& data) { return data.Delete(false); }},
    Command{"delete-model", [](Data& data) { return data.Delete(true); }},
};

} // namespace

int main(int argc, char* argv[])
{
    for (const Command& command : kCommands) {
        if (argc == 3 && command.name == argv[2]) {
            Data data(argv[1]);
            return command.run(data) ? 0 : 1;
        }
    }
    std::cerr << "usage: quillon_reliability_save FOLDER COMMAND; the commands:";
    for (const Command& command : kCommands) {
        std::cerr << ' ' << command.name;
    }
    std::cerr << '\n';
    return 2;
}
