#include "bench/store/benchmarks.h"
#include "bench/store/plain_files.h"
#include "store/profile_store.h"

#include <fstream>
#include <iterator>
#include <string>

namespace quillon::bench {
namespace {

/// The system's calls but for the waits for the disk.
class UnsyncedCalls : public store::FileCalls
{
public:
    int Fsync(int /*descriptor*/) override { return 0; }
};

enum class Waits { None, ForDisk };

/// Changes a gain back and forth, in a store that has to read the file first; all other bytes must be as before.
template <Waits waits>
void ChangeKey(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.Copy(size, "changed");
    const std::string model = ModelName(size.models / 2);
    store::FileCalls systemCalls;
    UnsyncedCalls unsyncedCalls;
    store::FileCalls& calls = waits == Waits::None ? unsyncedCalls : systemCalls;
    bool isChanged = false;
    const auto change = [&](std::string_view gain) {
        store::ProfileStore store(calls);
        return store.Edit(file, {model, ModelKeys().back(), std::string(gain)});
    };
    Repeat(state, [&] {
        isChanged = !isChanged;
        if (!change(isChanged ? "1" : "200")) {
            state.SkipWithError("the change failed");
        }
    });
    change(GainText(size.models / 2, kValuesOfModel - 1));
    std::ifstream stream(file, std::ios::binary);
    if (std::string(std::istreambuf_iterator<char>(stream), {}) != SampleText(size.models)) {
        state.SkipWithError("other bytes are changed");
    }
}

/// What cannot be done without: the bytes read, written to a new file, and that one put in the place of the old one.
void RewriteBytes(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.Copy(size, "rewritten");
    Repeat(state, [&] {
        const FileBytes bytes = ReadPlainly(file.c_str());
        ReplacePlainly(file, {bytes.data.get(), bytes.size}, PlainSync::No);
    });
}

/// The same without the reading, but on the disk when it ends.
void WriteAndSync(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.Copy(size, "synced");
    const std::string text = SampleText(size.models);
    Repeat(state, [&] { ReplacePlainly(file, text, PlainSync::Yes); });
}

} // namespace

void RegisterChanges(const Samples& samples)
{
    RegisterSizes("change", "Quillon", ChangeKey<Waits::None>, samples);
    RegisterSizes("change", "floor", RewriteBytes, samples);
    RegisterSizes("change_on_disk", "Quillon", ChangeKey<Waits::ForDisk>, samples);
    RegisterSizes("change_on_disk", "floor", WriteAndSync, samples);
}

} // namespace quillon::bench
