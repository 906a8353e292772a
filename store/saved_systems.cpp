#include "store/saved_systems.h"

#include "engine/computable.h"
#include "engine/text_compare.h"
#include "store/entry_name.h"
#include "store/profile_batch.h"
#include "store/profile_lines.h"

#include <algorithm>
#include <unordered_map>

namespace quillon::store {
namespace {

std::string SlotKey(int number)
{
    return "System:" + std::to_string(number);
}

std::string Folded(std::string_view key)
{
    std::string folded(key);
    std::transform(folded.begin(), folded.end(), folded.begin(), FoldCase);
    return folded;
}

} // namespace

std::vector<std::string> SavedSystems::Names() const
{
    // Gathered in one walk: looking up ten thousand keys one by one would walk the list ten thousand times.
    std::unordered_map<std::string, std::string_view> values;
    for (const ProfileEntry& entry : File().Entries(kSavedSystems)) {
        values.try_emplace(Folded(entry.name), WithoutQuotes(entry.value).substr(0, kLongestEntry));
    }
    std::vector<std::string> names;
    auto next = values.find(Folded(SlotKey(1)));
    while (next != values.end() && !next->second.empty()) {
        names.emplace_back(next->second);
        next = values.find(Folded(SlotKey(static_cast<int>(names.size()) + 1)));
    }
    return names;
}

SavedSystems::Slot SavedSystems::SystemExists(std::string_view name) const
{
    const std::vector<std::string> names = Names();
    const auto found = std::find_if(names.begin(), names.end(), [name](const std::string& listed) {
        return engine::EqualIgnoringCase(listed, name);
    });
    return {static_cast<int>(found - names.begin()) + 1, found != names.end() || name.empty()};
}

bool SavedSystems::Write(Slot slot, std::string_view name, const SystemPair& pair)
{
    constexpr std::int32_t kFailed = 0;
    const std::vector<std::pair<std::string, std::string>> entries = PairEntries(pair);
    ProfileBatch batch(m_store, m_readWrite.DataFilePath());
    // A list that could not be read for once looks empty: writing its first entry would lose all the others.
    if (SystemExists(name) != slot) {
        return false;
    }
    std::vector<std::int32_t> results{m_readWrite.IniWrite(kSavedSystems, SlotKey(slot.number), name)};
    for (const auto& [key, value] : entries) {
        results.push_back(m_readWrite.IniWrite(name, key, value));
    }
    results.push_back(m_readWrite.IniWrite(kSavedSystems, SlotKey(slot.number + 1), ""));
    if (std::find(results.begin(), results.end(), kFailed) != results.end() || !batch.Commit()) {
        return false;
    }
    return std::all_of(results.begin(), results.end(), [](std::int32_t result) { return result == 1; });
}

std::variant<SystemPair, DamagedValue> SavedSystems::ReadPair(std::string_view name) const
{
    std::variant<SystemPair, DamagedValue> read = store::ReadPair(File(), name);
    if (const auto* pair = std::get_if<SystemPair>(&read)) {
        for (const engine::SystemId system : engine::kBothSystems) {
            if (!engine::CanCompute((*pair)[system])) {
                return DamagedValue{"System" + std::to_string(Number(system)), "", DamagedValue::Fault::NotComputable};
            }
        }
    }
    return read;
}

engine::PerSystem<SystemNames> SavedSystems::ReadNames(std::string_view name) const
{
    return store::ReadNames(File(), name);
}

} // namespace quillon::store
