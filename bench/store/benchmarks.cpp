#include "bench/store/benchmarks.h"

#include <malloc.h>

namespace quillon::bench {

std::string Samples::File(const SampleSize& size) const
{
    const std::filesystem::path file = folder / std::string(size.name).append(".DAT");
    if (!std::filesystem::exists(file)) {
        WriteFile(file, SampleText(size.models));
    }
    return file.string();
}

std::string Samples::Copy(const SampleSize& size, std::string_view name) const
{
    const std::filesystem::path file = folder / std::string(name).append(size.name).append(".DAT");
    WriteFile(file, SampleText(size.models));
    return file.string();
}

void RegisterSizes(std::string_view work, std::string_view who, Benchmark run, const Samples& samples)
{
    for (const SampleSize& size : kSampleSizes) {
        const std::string name = std::string(work).append("/").append(who).append("/").append(size.name);
        benchmark::RegisterBenchmark(name.c_str(), run, samples, size);
    }
}

void RegisterPeers(std::string_view work, PeerBenchmark run, const Samples& samples)
{
    for (const NamedPeer& peer : AllPeers()) {
        for (const SampleSize& size : kSampleSizes) {
            if (size.models <= peer.mostModels) {
                const std::string name = std::string(work).append("/").append(peer.name).append("/").append(size.name);
                benchmark::RegisterBenchmark(name.c_str(), run, samples, size, peer);
            }
        }
    }
}

void TidyHeap()
{
    ::malloc_trim(0);
}

} // namespace quillon::bench
