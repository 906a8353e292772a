#pragma once

#include "store/profile_store.h"
#include "tests/store/failing_calls.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace quillon::store {

/// A store whose calls are counted and can fail, on a folder of its own.
class ProfileStoreTest : public ::testing::Test
{
protected:
    std::string Value(const std::filesystem::path& file)
    {
        return std::string(m_store.Read(file).Value("s", "k").value_or("none"));
    }

    bool Write(const std::filesystem::path& file, const char* value) { return m_store.Edit(file, {"s", "k", value}); }

    /// Waits until a further change of the file cannot leave the same time stamp.
    static void Settle(const std::filesystem::path& file)
    {
        const auto written = std::filesystem::last_write_time(file);
        while (std::filesystem::file_time_type::clock::now() - written < std::chrono::milliseconds(25)) {
        }
    }

    long Count(const char* call) { return std::count(m_calls.Made().begin(), m_calls.Made().end(), call); }

    support::TempFolder m_folder;
    std::filesystem::path m_file = m_folder / "f.dat";
    FailingCalls m_calls;
    ProfileStore m_store{m_calls};
};

} // namespace quillon::store
