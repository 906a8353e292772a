#pragma once

#include "store/catalogue.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace quillon::store {

/// A catalogue over empty folders.
class CatalogueTest : public ::testing::Test
{
protected:
    CatalogueTest()
    {
        std::filesystem::create_directory(m_folder / "Antennas");
        std::filesystem::create_directory(m_folder / "Coax");
    }

    [[nodiscard]] std::vector<std::string> Antennas() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder / "Antennas")) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    support::TempFolder m_folder;
    Catalogue m_catalogue{ProgramFolder(m_folder / "Quillon")};
};

} // namespace quillon::store
