#include "bench/store/benchmarks.h"
#include "bench/store/plain_files.h"
#include "store/catalogue.h"
#include "store/program_folder.h"

#include <algorithm>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quillon::bench {
namespace {

constexpr std::size_t kMakers = 1'000;

/// A program folder with makers' files of the smallest sample size, written in an order of no kind.
store::ProgramFolder MakersFolder(const Samples& samples)
{
    const store::ProgramFolder folder(samples.folder / "Quillon");
    const std::filesystem::path antennas = folder.AntennaFolder();
    if (!std::filesystem::exists(antennas)) {
        constexpr std::size_t kStep = 387; // has no divisor in common with the number of makers
        std::filesystem::create_directories(antennas);
        for (std::size_t count = 0; count < kMakers; ++count) {
            const std::string maker = "MAKER " + std::to_string(10'000 + count * kStep % kMakers);
            WriteFile(folder.AntennaFile(maker), SampleText(kSampleSizes.front().models));
        }
    }
    return folder;
}

void ListNames(benchmark::State& state, const Samples& samples)
{
    const store::Catalogue catalogue(MakersFolder(samples));
    Repeat(state, [&] {
        if (catalogue.LoadAntennaMakers().size() != kMakers) {
            state.SkipWithError("wrong number of makers");
        }
    });
}

void ReadFolderAndSort(benchmark::State& state, const Samples& samples)
{
    const std::string folder = MakersFolder(samples).AntennaFolder().string();
    Repeat(state, [&] {
        std::vector<std::string> names;
        const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), &::closedir);
        while (const dirent* entry = ::readdir(open.get())) {
            names.emplace_back(&entry->d_name[0]);
        }
        std::sort(names.begin(), names.end());
        if (names.size() != kMakers + 2) {
            state.SkipWithError("wrong number of names");
        }
    });
}

void ListModelsOfAll(benchmark::State& state, const Samples& samples)
{
    const store::ProgramFolder folder = MakersFolder(samples);
    const std::vector<std::string> makers = store::Catalogue(folder).LoadAntennaMakers();
    Repeat(state, [&] {
        const store::Catalogue catalogue(folder);
        for (const std::string& maker : makers) {
            if (catalogue.LoadAntennas(maker).size() != kSampleSizes.front().models) {
                state.SkipWithError("wrong number of models");
            }
        }
    });
}

void ReadAll(benchmark::State& state, const Samples& samples)
{
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(MakersFolder(samples).AntennaFolder())) {
        files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    Repeat(state, [&] {
        for (const std::string& file : files) {
            benchmark::DoNotOptimize(ReadPlainly(file.c_str()).size);
        }
    });
}

} // namespace

void RegisterFolders(const Samples& samples)
{
    benchmark::RegisterBenchmark("maker_names/Quillon/1000", ListNames, samples);
    benchmark::RegisterBenchmark("maker_names/floor/1000", ReadFolderAndSort, samples);
    benchmark::RegisterBenchmark("maker_files/Quillon/1000", ListModelsOfAll, samples);
    benchmark::RegisterBenchmark("maker_files/floor/1000", ReadAll, samples);
}

} // namespace quillon::bench
