#pragma once

#include "engine/notifier.h"
#include "store/profile_store.h"
#include "store/program_folder.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillon::store {

/// Access to the program's data sets, of which "Systems" holds the saved pairs of systems. All functions work on the
/// file that DataFileCheck chose last.
class ReadWrite
{
public:
    /// @param store, notifier  must outlive this object.
    ReadWrite(ProgramFolder folder, ProfileStore& store, engine::Notifier& notifier);

    /// Path of the data set chosen last, also when it was found missing; empty before the first choice.
    [[nodiscard]] const std::string& DataFilePath() const noexcept { return m_dataFilePath; }

    /// Chooses a data set by its exact name ("Systems", "Antennas", "Coax"); any other name stands for the program
    /// folder itself, which counts as found as soon as any file lies in it. Tells the user when nothing is found.
    /// @return whether the file is there
    bool DataFileCheck(std::string_view name);

    /// The value as it stands in the file, at most 254 characters of it; empty when there is none. Not trimmed, as
    /// given, unlike INIManager's.
    [[nodiscard]] std::string IniRead(std::string_view section, std::string_view key) const;

    /// Writes a pair of at most 255 characters each. A longer one is not written: the user is told instead.
    /// @return 1 on success, 0 on failure, -1 for a pair that is too long
    std::int32_t IniWrite(std::string_view section, std::string_view key, std::string_view value);

private:
    ProgramFolder m_folder;
    ProfileStore& m_store;
    engine::Notifier& m_notifier;
    std::string m_dataFilePath;
};

} // namespace quillon::store
