#pragma once

#include "bench/peers/peer.h"
#include "bench/store/sample_files.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace quillon::bench {

/// Sample files in a folder, one per size, made when they are first asked for.
struct Samples
{
    std::filesystem::path folder;

    [[nodiscard]] std::string File(const SampleSize& size) const;
    /// A file of its own for a benchmark that changes it.
    [[nodiscard]] std::string Copy(const SampleSize& size, std::string_view name) const;
};

/// Gives free memory back to the system, so that nothing that an earlier benchmark left is counted to the next one.
void TidyHeap();

/// Runs a piece of work once for nothing, as often as the benchmark wants it after that.
template <class Work>
void Repeat(benchmark::State& state, const Work& work)
{
    TidyHeap();
    work();
    for ([[maybe_unused]] auto _ : state) {
        work();
    }
}

using Benchmark = void (*)(benchmark::State& state, const Samples& samples, const SampleSize& size);
using PeerBenchmark = void (*)(benchmark::State& state, const Samples& samples, const SampleSize& size,
                               const NamedPeer& peer);

/// Registers a benchmark for each size, as "WORK/WHO/SIZE".
void RegisterSizes(std::string_view work, std::string_view who, Benchmark run, const Samples& samples);
/// The same for each peer.
void RegisterPeers(std::string_view work, PeerBenchmark run, const Samples& samples);

void RegisterSectionLists(const Samples& samples);
void RegisterModels(const Samples& samples);
void RegisterLookups(const Samples& samples);
void RegisterChanges(const Samples& samples);
void RegisterFolders(const Samples& samples);
void RegisterMemory(const Samples& samples);

} // namespace quillon::bench
