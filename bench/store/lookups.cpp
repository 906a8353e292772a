#include "bench/store/benchmarks.h"
#include "store/profile_store.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace quillon::bench {
namespace {

using Places = std::vector<std::pair<std::string, std::string>>;

Places PickPlaces(std::size_t models)
{
    constexpr std::size_t kCount = 1'000;
    std::minstd_rand numbers;
    std::uniform_int_distribution<std::size_t> key(0, kValuesOfModel - 1);
    ModelPicker picker(models);
    Places places;
    while (places.size() < kCount) {
        places.emplace_back(picker.Next(), ModelKeys().at(key(numbers)));
    }
    return places;
}

/// @param look  gives the length of the value at a section and a key.
template <class Look>
void LookUpAll(benchmark::State& state, std::size_t models, const Look& look)
{
    const Places places = PickPlaces(models);
    Repeat(state, [&] {
        for (const auto& [section, key] : places) {
            const std::size_t length = look(section, key);
            if (length < 2 || length > 3) {
                state.SkipWithError("wrong length of a value");
            }
        }
    });
}

void LookUp(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    store::ProfileStore store;
    const store::PrivateProfile& profile = store.Read(samples.File(size));
    if (!profile.Value(ModelName(0), ModelKeys().front())) { // makes the index, which belongs to the opening
        state.SkipWithError("no such value");
    }
    LookUpAll(state, size.models, [&profile](const std::string& section, const std::string& key) {
        return profile.Value(section, key).value_or("").size();
    });
}

void LookUpByPeer(benchmark::State& state, const Samples& samples, const SampleSize& size, const NamedPeer& named)
{
    const std::unique_ptr<Peer> peer = named.make();
    peer->Open(samples.File(size));
    peer->Length(ModelName(0), ModelKeys().front());
    LookUpAll(state, size.models,
              [&peer](const std::string& section, const std::string& key) { return peer->Length(section, key); });
}

} // namespace

void RegisterLookups(const Samples& samples)
{
    RegisterSizes("lookups", "Quillon", LookUp, samples);
    RegisterPeers("lookups", LookUpByPeer, samples);
}

} // namespace quillon::bench
