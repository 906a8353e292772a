#include "bench/store/benchmarks.h"
#include "store/profile_store.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace quillon::bench {
namespace {

using Places = std::vector<std::pair<std::string, std::string>>;

/// What is looked up, another thing each time as far as the file has so many: what was looked up just before would
/// still be in the processor's cache.
constexpr std::size_t kRounds = 50;
constexpr std::size_t kLookUps = 1'000;
/// A store looks through sections until it was asked more than once for each so many bytes.
constexpr std::size_t kBytesPerLookUp = 32;

Places PickPlaces(std::size_t models)
{
    std::minstd_rand numbers;
    std::uniform_int_distribution<std::size_t> key(0, kValuesOfModel - 1);
    ModelPicker picker(models);
    Places places;
    while (places.size() < kRounds * kLookUps) {
        places.emplace_back(picker.Next(), ModelKeys().at(key(numbers)));
    }
    return places;
}

/// @param look  gives the length of the value at a section and a key.
template <class Look>
void LookUpAll(benchmark::State& state, std::size_t models, const Look& look)
{
    const Places places = PickPlaces(models);
    std::size_t next = 0;
    Repeat(state, [&] {
        for (std::size_t count = 0; count < kLookUps; ++count) {
            const auto& [section, key] = places[next];
            next = (next + 1) % places.size();
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
    // Until the table of all entries is there, which the others make when they open a file.
    for (std::size_t count = 0; count < profile.Bytes().size() / kBytesPerLookUp; ++count) {
        if (!profile.Value(ModelName(0), ModelKeys().front())) {
            state.SkipWithError("no such value");
        }
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
