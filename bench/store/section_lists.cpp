#include "bench/store/benchmarks.h"
#include "bench/store/plain_files.h"
#include "store/ini_manager.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace quillon::bench {
namespace {

void CheckCount(benchmark::State& state, std::size_t count, std::size_t wanted)
{
    if (count != wanted) {
        state.SkipWithError("wrong number of sections");
    }
}

void ListAll(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.File(size);
    const auto list = [&file] { return store::ProfileStore().Read(file).SectionNames(std::string::npos); };
    const std::string names = list();
    CheckCount(state, static_cast<std::size_t>(std::count(names.begin(), names.end(), '\0')), size.models);
    Repeat(state, [&] { CheckCount(state, list().size(), names.size()); }); // telling the names apart is no part of it
}

/// How many of a file's models the program lists: those that stand whole in 2,046 characters.
std::size_t ListedModels(std::size_t models)
{
    std::size_t characters = 0;
    std::size_t listed = 0;
    while (listed < models && characters + ModelName(listed).size() < 2046) {
        characters += ModelName(listed++).size() + 1;
    }
    return listed;
}

/// As the program lists the models of a maker.
void ListAsProgram(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.File(size);
    const std::size_t listed = ListedModels(size.models);
    Repeat(state, [&] {
        store::ProfileStore store;
        CheckCount(state, store::INIManager(store).GetAllSections(file).size(), listed);
    });
}

/// The least that telling the sections of a file takes: its bytes, and a look for every bracket.
void CountBrackets(benchmark::State& state, const Samples& samples, const SampleSize& size)
{
    const std::string file = samples.File(size);
    Repeat(state, [&] {
        const FileBytes bytes = ReadPlainly(file.c_str());
        std::string_view rest(bytes.data.get(), bytes.size);
        std::size_t count = 0;
        while (const void* bracket = std::memchr(rest.data(), '[', rest.size())) {
            rest.remove_prefix(static_cast<std::size_t>(static_cast<const char*>(bracket) - rest.data()) + 1);
            ++count;
        }
        CheckCount(state, count, size.models);
    });
}

void ListByPeer(benchmark::State& state, const Samples& samples, const SampleSize& size, const NamedPeer& named)
{
    const std::string file = samples.File(size);
    const std::unique_ptr<Peer> peer = named.make();
    Repeat(state, [&] { CheckCount(state, peer->ListSections(file), size.models); });
}

} // namespace

void RegisterSectionLists(const Samples& samples)
{
    RegisterSizes("list", "Quillon", ListAll, samples);
    RegisterSizes("list", "floor", CountBrackets, samples);
    RegisterSizes("list_cut", "Quillon", ListAsProgram, samples);
    RegisterPeers("list", ListByPeer, samples);
}

} // namespace quillon::bench
