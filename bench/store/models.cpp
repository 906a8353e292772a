#include "bench/store/benchmarks.h"
#include "store/ini_manager.h"

#include <string>

namespace quillon::bench {
namespace {

/// As the program reads a model: its keys, its unit, its gains. @return characters of keys and values
std::size_t ReadModel(store::ProfileStore& store, const std::string& file, const std::string& model)
{
    store::INIManager manager(store);
    manager.FileName(file);
    std::size_t length = 0;
    for (const std::string& key : manager.GetAllKeys(model, file)) {
        length += key.size() + manager.GetValue(model, key, "").size();
    }
    return length;
}

/// Three or two digits per gain, three letters for the unit.
void CheckLength(benchmark::State& state, std::size_t length)
{
    std::size_t least = 3 + 2 * (kValuesOfModel - 1);
    for (const std::string& key : ModelKeys()) {
        least += key.size();
    }
    if (length < least || length > least + kValuesOfModel) {
        state.SkipWithError("wrong length of keys and values");
    }
}

void ReadCold(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.File(size);
    ModelPicker picker(size.models);
    Repeat(state, [&] {
        store::ProfileStore store;
        CheckLength(state, ReadModel(store, file, picker.Next()));
    });
}

void ReadUnchanged(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.File(size);
    ModelPicker picker(size.models);
    store::ProfileStore store;
    ReadModel(store, file, picker.Next());
    Repeat(state, [&] { CheckLength(state, ReadModel(store, file, picker.Next())); });
}

void ReadByPeer(benchmark::State& state, const Samples& samples, const SampleSize& size, const NamedPeer& named)
{
    const std::string file = samples.File(size);
    ModelPicker picker(size.models);
    const std::unique_ptr<Peer> peer = named.make();
    Repeat(state, [&] { CheckLength(state, peer->ReadSection(file, picker.Next())); });
}

} // namespace

void RegisterModels(const Samples& samples)
{
    RegisterSizes("model", "Quillon", ReadCold, samples);
    RegisterSizes("model_again", "Quillon", ReadUnchanged, samples);
    RegisterPeers("model", ReadByPeer, samples);
}

} // namespace quillon::bench
