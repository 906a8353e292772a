// Saves again and again, in ways that a seed chooses, and tells of each save once it is done:
// quillon_reliability_save_loop FOLDER SEED
//
// A line "FILE CRC WHAT" says that the command WHAT has reported success, and what FILE, below FOLDER, holds since
// then. No command writes more than one file.

#include "store/antenna_files.h"
#include "store/saved_systems.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>

namespace {

using namespace quillon;

constexpr int kPairs = 30;
constexpr int kMakers = 40;
constexpr int kModels = 25;

/// The checksum of zip files.
std::uint32_t Crc(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::uint32_t crc = 0xFFFFFFFF;
    for (auto byte = std::istreambuf_iterator<char>(file); byte != std::istreambuf_iterator<char>(); ++byte) {
        crc ^= static_cast<unsigned char>(*byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1U) ^ (0xEDB88320U & (0U - (crc & 1U)));
        }
    }
    return ~crc;
}

class SilentNotifier : public engine::Notifier
{
public:
    void Inform(std::string_view /*text*/, std::string_view /*title*/) override {}
};

class SaveLoop
{
public:
    SaveLoop(const std::filesystem::path& folder, std::uint64_t seed)
        : m_folder(folder / "Quillon")
        , m_readWrite(m_folder, m_store, m_notifier)
        , m_saved(m_readWrite, m_store)
        , m_antennas(m_folder, m_store)
        , m_random(seed)
    {
    }

    /// @return false when a save failed or does not stand in the file.
    bool Step()
    {
        switch (Below(8)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return SavePair();
        case 4:
            m_brand = "Maker" + std::to_string(Below(kMakers));
            return Tell(m_antennas.CreateBrandFile(m_brand), Brand(), "add maker");
        case 5:
            return Tell(m_antennas.AddModel(m_brand, Model(), store::IfModelFound::Replace), Brand(), "add model");
        case 6:
            return SaveBands();
        default:
            return !m_antennas.BrandFileExists(m_brand) || UpdateIndex();
        }
    }

private:
    int Below(int end) { return static_cast<int>(m_random() % static_cast<std::uint64_t>(end)); }

    std::string Model() { return "Model " + std::to_string(Below(kModels)); }

    [[nodiscard]] std::filesystem::path Brand() const { return m_folder.AntennaFile(m_brand); }

    bool Tell(bool stands, const std::filesystem::path& file, std::string_view what)
    {
        std::cout << file.lexically_relative(m_folder.Path()).string() << ' ' << Crc(file) << ' '
                  << (stands ? what : "FAILED") << std::endl;
        return stands;
    }

    engine::SystemData System()
    {
        engine::SystemData data = store::ResetSystem();
        data.AntennaBrand = "Maker " + std::to_string(Below(kMakers));
        data.AntennaModel = Model();
        data.AntennaGain = static_cast<float>(Below(100)) / 8;
        data.CoaxBrand = "Cable maker";
        data.CoaxLoss = static_cast<float>(1 + Below(100)) / 16;
        data.CoaxLength = static_cast<float>(1 + Below(1000));
        return data;
    }

    bool SavePair()
    {
        const std::string name = "Pair " + std::to_string(Below(kPairs));
        store::SystemPair pair;
        for (const engine::SystemId system : engine::kBothSystems) {
            pair[system] = System();
        }
        m_saved.DataFileCheck();
        const store::SavedSystems::Slot slot = m_saved.SystemExists(name);
        const bool stands =
            m_saved.Write(slot, name, pair) && std::holds_alternative<store::SystemPair>(m_saved.ReadPair(name));
        return Tell(stands, m_readWrite.DataFilePath(), slot.exists ? "save over" : "save new");
    }

    bool SaveBands()
    {
        store::ModelFigures figures{Below(2) == 0 ? "dBd" : "dBi", {}};
        for (auto& gain : figures.GainTenths) {
            if (Below(2) == 0) {
                gain = static_cast<std::int16_t>(Below(300));
            }
        }
        return Tell(m_antennas.SaveChanges(m_brand, Model(), figures), Brand(), "save bands");
    }

    bool UpdateIndex()
    {
        using namespace std::chrono;
        const year_month_day day = sys_days(2000y / January / 1) + days(Below(9000));
        return Tell(m_antennas.UpdateIndex(m_brand, day), m_folder.AntennaIndex(), "index");
    }

    store::ProgramFolder m_folder;
    store::ProfileStore m_store;
    SilentNotifier m_notifier;
    store::ReadWrite m_readWrite;
    store::SavedSystems m_saved;
    store::AntennaFiles m_antennas;
    std::mt19937_64 m_random;
    std::string m_brand = "Maker0";
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::cerr << "usage: quillon_reliability_save_loop FOLDER SEED\n";
        return 2;
    }
    SaveLoop loop(argv[1], std::strtoull(argv[2], nullptr, 10));
    while (loop.Step()) {
    }
    return 1;
}
