#include "tests/reliability/faults/operations.h"

#include "store/antenna_files.h"
#include "store/ini_manager.h"
#include "store/saved_systems.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/sample_pair.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <system_error>

namespace quillon::reliability {
namespace {

using namespace std::chrono_literals;
using store::ProfileStore;
using store::ProgramFolder;

constexpr const char* kSystems = "QuillonSystems.dat";
constexpr const char* kMaker = "Antennas/Acme.DAT";
constexpr const char* kIndex = "Antennas/ANTENNAS.ZEP";
constexpr const char* kModels = "[A]\nGainType=dBd\nGain20=71\nGain40=33\n[B]\nGainType=dBi\nGain10=5\n";
constexpr const char* kOtherModel = "[B]\nGainType=dBi\nGain10=5\n";

bool SavePair(ProfileStore& store, const ProgramFolder& folder, const char* name)
{
    support::RecordingNotifier notifier;
    store::ReadWrite readWrite(folder, store, notifier);
    store::SavedSystems saved(readWrite, store);
    return saved.DataFileCheck() && saved.Write(saved.SystemExists(name), name, support::SamplePair());
}

bool SaveNewPair(ProfileStore& store, const ProgramFolder& folder)
{
    return SavePair(store, folder, "C");
}

bool SaveOverAPair(ProfileStore& store, const ProgramFolder& folder)
{
    return SavePair(store, folder, "A");
}

bool AddMaker(ProfileStore& store, const ProgramFolder& folder)
{
    return store::AntennaFiles(folder, store).CreateBrandFile("Acme");
}

/// As the editor does it: it asks what is there, and nobody agrees to a replacement.
bool AddModel(ProfileStore& store, const ProgramFolder& folder, const char* model)
{
    store::AntennaFiles files(folder, store);
    return !files.FirstModelWith("Acme", model) && files.AddModel("Acme", model, store::IfModelFound::Refuse);
}

bool AddNewModel(ProfileStore& store, const ProgramFolder& folder)
{
    return AddModel(store, folder, "Beam 9");
}

bool AddModelThatExists(ProfileStore& store, const ProgramFolder& folder)
{
    return AddModel(store, folder, "B");
}

bool SaveBands(ProfileStore& store, const ProgramFolder& folder)
{
    store::ModelFigures figures{"dBi", {}};
    figures.GainTenths[1] = std::int16_t{0};
    figures.GainTenths[5] = std::int16_t{52};
    return store::AntennaFiles(folder, store).SaveChanges("Acme", "A", figures);
}

bool RemoveBands(ProfileStore& store, const ProgramFolder& folder)
{
    return store::AntennaFiles(folder, store).SaveChanges("Acme", "A", {"dBi", {}});
}

bool UpdateIndex(ProfileStore& store, const ProgramFolder& folder)
{
    return store::AntennaFiles(folder, store).UpdateIndex("Acme", 2026y / 3 / 7);
}

template <class Command>
bool OnMakerFile(ProfileStore& store, const ProgramFolder& folder, const Command& command)
{
    try {
        store::INIManager manager(store);
        manager.FileName(folder.AntennaFile("Acme").string());
        return command(manager);
    } catch (const std::system_error&) {
        return false;
    }
}

bool DeleteKey(ProfileStore& store, const ProgramFolder& folder)
{
    return OnMakerFile(store, folder, [](auto& file) { return file.DeleteKey("A", "Gain40", file.FileName()); });
}

bool DeleteSection(ProfileStore& store, const ProgramFolder& folder)
{
    return OnMakerFile(store, folder, [](auto& file) { return file.DeleteSection("A", file.FileName()); });
}

std::string OldPair()
{
    std::string entries = support::SampleEntries("\n");
    const std::string vswr = "System1VSWR=1.5";
    return "[A]\n" + entries.replace(entries.find(vswr), vswr.size(), "System1VSWR=3");
}

std::string OnlyPair(const std::string& name)
{
    return "[SavedSystems]\r\nSystem:1=" + name + "\r\nSystem:2=\r\n[" + name + "]\r\n" +
           support::SampleEntries("\r\n");
}

std::vector<Operation> MakeOperations()
{
    const std::string models = kModels;
    const std::string other = kOtherModel;
    const std::string pairs =
        "[SavedSystems]\nSystem:1=A\nSystem:2=B\nSystem:3=\n" + OldPair() + "[B]\nSystem1VSWR=2\n";
    const std::string added = "[SavedSystems]\nSystem:1=A\nSystem:2=B\nSystem:3=C\nSystem:4=\n" + OldPair() +
                              "[B]\nSystem1VSWR=2\n[C]\n" + support::SampleEntries("\n");
    const std::string updated = "[SavedSystems]\nSystem:1=A\nSystem:2=\nSystem:3=\n[A]\n" +
                                support::SampleEntries("\n") + "[B]\nSystem1VSWR=2\n";
    const std::string index = "[Other]\nNumEntries=1\n[Acme]\nDateCreated=03/14/2003\nLastModified=11/02/2003\n"
                              "NumEntries=12\n";
    const std::string newIndex = "[Other]\nNumEntries=1\n[Acme]\nDateCreated=03/14/2003\nLastModified=03/07/2026\n"
                                 "NumEntries=2\n";
    const std::string onlyIndex =
        "[Acme]\r\n=\r\nDateCreated=03/07/2026\r\nLastModified=03/07/2026\r\nNumEntries=2\r\n";
    // clang-format off
    return {
        {"save-new-pair",  kSystems, pairs,  added,   OnlyPair("C"), false, false, SaveNewPair},
        {"save-over-pair", kSystems, pairs,  updated, OnlyPair("A"), false, false, SaveOverAPair},
        {"add-maker",      kMaker,   models, models,  "", true, false, AddMaker},
        {"add-model",      kMaker,   models, models + "[Beam 9]\nGainType=dBd\n",
         "[Beam 9]\r\nGainType=dBd\r\n", true, false, AddNewModel},
        {"add-old-model",  kMaker,   models, models, "[B]\r\nGainType=dBd\r\n", true, true, AddModelThatExists},
        {"save-bands",     kMaker,   models, "[A]\nGainType=dBi\nGain20=52\nGain80=0\n" + other,
         "[A]\r\nGainType=dBi\r\nGain80=0\r\nGain20=52\r\n", true, false, SaveBands},
        {"remove-bands",   kMaker,   models, "[A]\nGainType=dBi\n" + other,
         "[A]\r\nGainType=dBi\r\n", true, false, RemoveBands},
        {"update-index",   kIndex,   index,  newIndex, onlyIndex, true, false, UpdateIndex},
        {"delete-key",     kMaker,   models, "[A]\nGainType=dBd\nGain20=71\n" + other, "", true, false, DeleteKey},
        {"delete-section", kMaker,   models, other, "", true, false, DeleteSection},
    };
    // clang-format on
}

} // namespace

const std::vector<Operation>& Operations()
{
    static const std::vector<Operation> operations = MakeOperations();
    return operations;
}

const Operation& OperationOf(const std::string& name)
{
    const auto found = std::ranges::find(Operations(), name, &Operation::name);
    if (found == Operations().end()) {
        throw std::out_of_range("no operation " + name);
    }
    return *found;
}

} // namespace quillon::reliability
