#include "bench/store/benchmarks.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>

namespace quillon::bench {
namespace {

/// A folder in the current one, where the disk is; gone with everything in it at the end.
class WorkFolder
{
public:
    WorkFolder()
    {
        std::string pattern = (std::filesystem::current_path() / "bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("cannot make a folder in the current one");
        }
        m_path = pattern;
    }

    ~WorkFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

private:
    std::filesystem::path m_path;
};

int Run(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    const WorkFolder folder;
    const Samples samples{folder.Path()};
    RegisterSectionLists(samples);
    RegisterModels(samples);
    RegisterLookups(samples);
    RegisterChanges(samples);
    RegisterFolders(samples);
    RegisterMemory(samples);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv)
{
    try {
        return quillon::bench::Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
