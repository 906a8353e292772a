#pragma once

#include "engine/records.h"
#include "store/private_profile.h"

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace quillon::store {

/// The inputs of both systems, as they stand in the saved-systems file under one name.
using SystemPair = engine::PerSystem<engine::SystemData>;

/// The texts that one system of a saved pair is known by, in the file's code page and without blanks around them.
struct SystemNames
{
    std::string antennaBrand;
    std::string antennaModel;
    std::string coaxBrand;
    std::string coaxModel;

    [[nodiscard]] bool operator==(const SystemNames&) const = default;
};

[[nodiscard]] SystemNames NamesOf(const engine::SystemData& data);

/// A value that keeps a saved pair from being loaded.
struct DamagedValue
{
    enum class Fault {
        Missing,
        NoNumber,
        TooLarge,     ///< a whole number beyond 16 bits
        NotComputable ///< each figure will do, but the system's results would overflow
    };

    std::string key;   ///< "System1" or "System2" alone when no one key is to blame
    std::string value; ///< as it stands in the file
    Fault fault;

    [[nodiscard]] bool operator==(const DamagedValue&) const = default;
};

/// What a system's record holds before a saved pair is read into it: 100 ft, 18.2 MHz, 2 connectors, 100 W, a
/// standing-wave ratio of 1.1, and nothing else.
[[nodiscard]] engine::SystemData ResetSystem();

/// The keys of a pair with their values, 12 for System One, then 12 for System Two, in the order in which they are
/// written. Numbers are the shortest text that reads back.
/// @throws ArithmeticError when a figure is not finite.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> PairEntries(const SystemPair& pair);

/// Reads and checks a whole pair. An empty value gives what ResetSystem gives, but for the antenna's gain and the
/// cable's type, loss and length, which must be there. These four must be numbers, too; in the other figures a text
/// that is no number is 0.
/// @return the first value that does not do, in the order of PairEntries, instead.
[[nodiscard]] std::variant<SystemPair, DamagedValue> ReadPair(const PrivateProfile& file, std::string_view name);

/// Reads the names only, cut to the widths of the records; empty for what is not there.
[[nodiscard]] engine::PerSystem<SystemNames> ReadNames(const PrivateProfile& file, std::string_view name);

} // namespace quillon::store
