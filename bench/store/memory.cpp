#include "bench/store/benchmarks.h"
#include "store/ini_manager.h"

#include <malloc.h>
#include <string>

namespace quillon::bench {
namespace {

/// Bytes that the C library has given out and not got back.
double HeldMemory()
{
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Counts the bytes held for each byte of a file while it is in memory, and after another one was opened.
void HoldFile(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    constexpr std::size_t kManyLookUps = 1'000'000;
    const std::string file = samples.File(size);
    const std::string other = samples.File(kSampleSizes.front());
    const auto bytes = static_cast<double>(std::filesystem::file_size(file));
    for ([[maybe_unused]] auto _ : state) {
        store::ProfileStore store;
        const double before = HeldMemory();
        {
            // Looked up so often that whatever is made to be quicker has been made.
            const store::PrivateProfile& profile = store.Read(file);
            ModelPicker picker(size.models);
            for (std::size_t count = 0; count < kManyLookUps; ++count) {
                benchmark::DoNotOptimize(profile.Value(picker.Next(), ModelKeys().back()));
            }
        }
        state.counters["held"] = (HeldMemory() - before) / bytes;
        benchmark::DoNotOptimize(store.Read(other).Value(ModelName(0), ModelKeys().front()));
        state.counters["left"] = (HeldMemory() - before) / bytes;
    }
}

} // namespace

void RegisterMemory(const Samples& samples)
{
    const SampleSize& largest = kSampleSizes.back();
    benchmark::RegisterBenchmark("memory/Quillon/30M", HoldFile, samples, largest)->Iterations(1);
}

} // namespace quillon::bench
