// Files that no one would write on purpose: whatever the bytes, reading, listing and writing end soon and alike.

#include "store/catalogue.h"
#include "store/profile_lines.h"
#include "store/profile_strings.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>

namespace quillon::store {
namespace {

using namespace std::string_literals;

/// Bytes that mean something in a file, and some that do not.
std::string RandomBytes(std::mt19937& random, std::size_t longest)
{
    static const std::string kBytes = "[]=;\r\n \t\"'\0aAbB\xE9\xFF|\\/"s;
    std::string bytes(random() % (longest + 1), '\0');
    for (char& byte : bytes) {
        byte = random() % 8 == 0 ? static_cast<char>(random() % 256) : kBytes[random() % kBytes.size()];
    }
    return bytes;
}

std::string RandomName(std::mt19937& random)
{
    static constexpr std::array<const char*, 6> kNames{"a", "A b", "]", "\xE9", "b\"", "x[y"};
    return kNames.at(random() % kNames.size());
}

std::string OneLine(std::string text)
{
    std::erase_if(text, [](char character) { return character == '\r' || character == '\n' || character == '\0'; });
    return text;
}

std::string Read(const PrivateProfile& profile, const std::string& section, const std::string& key)
{
    return std::string(profile.Value(section, key).value_or("none"));
}

TEST(DamagedFiles, GiveBackWhatIsWrittenIntoThem)
{
    for (unsigned seed = 0; seed < 4000; ++seed) {
        std::mt19937 random(seed);
        PrivateProfile profile(RandomBytes(random, 120));
        for (int number = 0; number < 4; ++number) {
            const std::string section = RandomName(random);
            const std::string key = RandomName(random);
            const std::string value = OneLine(RandomBytes(random, 10));
            profile.Make(profile.ValueChange(section, key, value));
            ASSERT_EQ(Read(profile, section, key), WithoutBlanks(value)) << seed;
            ASSERT_FALSE(profile.Make(profile.ValueChange(section, key, value))) << seed;
            const std::string written(profile.Bytes());
            ASSERT_EQ(Read(PrivateProfile(written), section, key), WithoutBlanks(value)) << seed;
        }
    }
}

TEST(DamagedFiles, KeepEveryOtherByteWhenOneLineChanges)
{
    for (unsigned seed = 0; seed < 4000; ++seed) {
        std::mt19937 random(seed);
        PrivateProfile profile(RandomBytes(random, 200));
        const std::string before(profile.Bytes());
        const std::string section = RandomName(random);
        const std::string key = RandomName(random);
        profile.Make(profile.ValueChange(section, key, "v"));
        const std::string_view after = profile.Bytes();
        const auto differing = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
        const auto same = static_cast<std::size_t>(differing.first - before.begin());
        const std::string rest = before.substr(same);
        // What follows the place of the change stands at the end of the new text but for one old value.
        const auto tail =
            std::mismatch(rest.rbegin(), rest.rend(), after.rbegin(), after.rend() - static_cast<std::ptrdiff_t>(same));
        const std::string lost(rest.begin(), tail.first.base());
        ASSERT_EQ(lost.find_first_of("\r\n"), std::string::npos) << seed;
    }
}

TEST(DamagedFiles, ListWhatCanBeReadBack)
{
    for (unsigned seed = 0; seed < 4000; ++seed) {
        std::mt19937 random(seed);
        std::string bytes = RandomBytes(random, 200);
        std::erase(bytes, '\0');
        const PrivateProfile profile(bytes);
        std::string sections = profile.SectionNames(5000);
        while (!sections.empty()) {
            const std::string section = sections.substr(0, sections.find('\0'));
            sections.erase(0, section.size() + 1);
            std::string keys = profile.KeyNames(section, 5000);
            while (!keys.empty()) {
                const std::string key = keys.substr(0, keys.find('\0'));
                keys.erase(0, key.size() + 1);
                ASSERT_TRUE(profile.Value(section, key)) << seed;
            }
        }
    }
}

TEST(DamagedFiles, AreReadAsACatalogueWithoutHarm)
{
    support::TempFolder folder;
    const Catalogue catalogue(ProgramFolder(folder / "Quillon"));
    for (unsigned seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        const std::string bytes = RandomBytes(random, 400);
        folder.Put("Antennas/X.DAT", bytes);
        folder.Put("Coax/X.DAT", bytes);
        BandTable table;
        std::array<float, 9> coaxSpec{};
        for (const std::string& model : catalogue.LoadAntennas("X")) {
            ASSERT_FALSE(model.empty());
            (void)catalogue.LoadAntennaGain("X", model, table);
        }
        for (const std::string& type : catalogue.LoadCableTypes("X")) {
            (void)catalogue.LoadCableLoss("X", type, coaxSpec);
            (void)catalogue.LoadCableKFactors("X", type, coaxSpec);
        }
        ASSERT_EQ(folder.Get("Antennas/X.DAT"), bytes);
        ASSERT_EQ(folder.Get("Coax/X.DAT"), bytes);
    }
}

struct PieceRow
{
    const char* name;
    const char* piece;
};

/// Texts of a size at which anything but one pass over them would not end before the test runner's patience does.
class HugeText : public ::testing::TestWithParam<PieceRow>
{
protected:
    static constexpr std::size_t kSize = 4UL * 1024 * 1024;

    static std::string Repeat(const std::string& piece)
    {
        std::string text;
        text.reserve(kSize + piece.size());
        while (text.size() < kSize) {
            text += piece;
        }
        return text;
    }
};

TEST_P(HugeText, IsReadListedAndWrittenInOnePass)
{
    PrivateProfile profile(Repeat(GetParam().piece));
    (void)profile.SectionNames(2048);
    (void)profile.KeyNames("a", 2048);
    (void)profile.Value("a", "missing");
    EXPECT_TRUE(profile.Make(profile.ValueChange("the last", "k", "v")));
    EXPECT_EQ(profile.Value("the last", "k"), "v");
    EXPECT_TRUE(profile.Make(profile.SectionRemoval("the last")));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pieces, HugeText, ::testing::Values(
    PieceRow{"one long line", "x"},
    PieceRow{"one long line of opening brackets", "["},
    PieceRow{"one long line of closing brackets", "]"},
    PieceRow{"one long line of blanks", " "},
    PieceRow{"one long line of brackets and blanks", "[ [ ["},
    PieceRow{"one long line of blanks, then brackets", "  ["},
    PieceRow{"one long header that is not closed", "[a"},
    PieceRow{"headers without name", "[]\n"},
    PieceRow{"equal headers that end with CR", "[a]\r"},
    PieceRow{"empty lines, CR", "\r"},
    PieceRow{"empty lines, LF", "\n"},
    PieceRow{"comments with brackets", "\n;["},
    PieceRow{"empty keys", "\n ="},
    PieceRow{"equal keys", "k=v\n"},
    PieceRow{"equal sections of one key and a blank line", "[a]\nk=v\n\n"}), support::RowName());

// clang-format on

TEST(DamagedFiles, OfAHundredThousandSectionsAnswerByName)
{
    std::string text;
    for (int number = 0; number < 100'000; ++number) {
        text += "[Model " + std::to_string(number) + "]\r\nGainType=dBi\r\nGain20=" + std::to_string(number) + "\r\n";
    }
    support::TempFolder folder;
    folder.Put("Antennas/X.DAT", text);
    const Catalogue catalogue(ProgramFolder(folder / "Quillon"));
    BandTable table;
    EXPECT_EQ(catalogue.LoadAntennas("X").front(), "Model 0");
    for (int number = 0; number < 100'000; number += 1000) {
        EXPECT_EQ(catalogue.LoadAntennaGain("X", "model " + std::to_string(number), table).size(), 1U);
        EXPECT_EQ(table.at(5).gain, std::to_string(number));
    }
}

} // namespace
} // namespace quillon::store
