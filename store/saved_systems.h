#pragma once

#include "store/profile_store.h"
#include "store/read_write.h"
#include "store/system_entry.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillon::store {

/// Section that lists the saved pairs by name.
inline constexpr std::string_view kSavedSystems = "SavedSystems";

/// The saved-systems file: a list of names, and one section per pair of systems. All names and texts are in the file's
/// code page. DataFileCheck comes first: it chooses the file that all others work on.
class SavedSystems
{
public:
    /// @param readWrite, store  must outlive this object; readWrite works on store.
    SavedSystems(ReadWrite& readWrite, ProfileStore& store)
        : m_readWrite(readWrite)
        , m_store(store)
    {
    }

    /// Chooses the saved-systems file. @return whether it is there; the user is told when it is not.
    bool DataFileCheck() { return m_readWrite.DataFileCheck("Systems"); }

    /// The listed names in file order, up to the first that is missing or empty.
    [[nodiscard]] std::vector<std::string> Names() const;

    /// Number of the list's entry that a name has, or would get.
    struct Slot
    {
        int number; ///< from 1
        bool exists;

        [[nodiscard]] bool operator==(const Slot&) const = default;
    };

    /// Looks a name up without regard to case. The empty name is found in the first empty entry.
    [[nodiscard]] Slot SystemExists(std::string_view name) const;

    /// Writes both systems under a name, with one replacement of the file. As given, the list ends behind the entry
    /// written: what was listed there, and all that follows it, keeps its section but is listed no more.
    /// @param slot  what SystemExists gave for the name.
    /// @return whether all of it stands in the file. A name that is too long is not written, and told to the user,
    ///         while the rest is. When the file cannot be written, or the slot is no longer the name's, the file stands
    ///         as before.
    /// @throws ArithmeticError when a figure is not finite; nothing is written then.
    [[nodiscard]] bool Write(Slot slot, std::string_view name, const SystemPair& pair);

    /// As the functions of the same names, from the file as it stands now. A pair that cannot be computed with is
    /// damaged, too.
    [[nodiscard]] std::variant<SystemPair, DamagedValue> ReadPair(std::string_view name) const;
    [[nodiscard]] engine::PerSystem<SystemNames> ReadNames(std::string_view name) const;

private:
    [[nodiscard]] const PrivateProfile& File() const { return m_store.Read(m_readWrite.DataFilePath()); }

    ReadWrite& m_readWrite;
    ProfileStore& m_store;
};

} // namespace quillon::store
