#include "engine/key_checks.h"

#include "tests/support/recording_notifier.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon::engine {
namespace {

TEST(CheckNumericKey, OnlyTheNumericAndEditingKeysAreSilent)
{
    const std::set<int> silent{8,  9,  13, 37, 39, 46, 48,  49,  50,  51,  52,  53,  54, 55,
                               56, 57, 96, 97, 98, 99, 100, 101, 102, 103, 104, 105, 110};
    for (int key = 0; key <= 255; ++key) {
        support::RecordingNotifier notifier;
        EXPECT_TRUE(CheckNumericKey(key, notifier)) << "key " << key << " goes through in any case";
        EXPECT_EQ(notifier.Messages().empty(), silent.count(key) == 1) << "key " << key;
    }
}

TEST(CheckNumericKey, MainKeyboardPointRaisesTheMessageAsGiven)
{
    support::RecordingNotifier notifier;
    CheckNumericKey(190, notifier);
    ASSERT_EQ(notifier.Messages().size(), 1U);
    EXPECT_EQ(notifier.Messages()[0].text, "Please Enter Only Numbers!");
    EXPECT_EQ(notifier.Messages()[0].title, "Input Error");
}

TEST(FilterGainKey, OnlyNumericAndEditingCharactersPass)
{
    const std::set<int> passing{8, 9, 10, 13, 27, '0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '-', '.'};
    for (int character = -1; character <= 256; ++character) {
        EXPECT_EQ(FilterGainKey(character), passing.count(character) == 1 ? character : 0) << character;
    }
}

TEST(FilterListKey, EditingCharactersAndBlankToCapitalZPass)
{
    for (const int character : {8, 9, 10, 13, 27}) {
        EXPECT_EQ(FilterListKey(character), character);
    }
    for (int character = 32; character <= 90; ++character) {
        EXPECT_EQ(FilterListKey(character), character);
    }
}

TEST(FilterListKey, SmallLettersBecomeCapitals)
{
    for (int character = 97; character <= 122; ++character) {
        EXPECT_EQ(FilterListKey(character), character - 32);
    }
}

TEST(FilterListKey, AllElseIsDropped)
{
    for (const int character : {-1, 0, 7, 11, 12, 14, 26, 28, 31, 91, 92, 95, 96, 123, 126, 127, 228, 1000}) {
        EXPECT_EQ(FilterListKey(character), 0) << character;
    }
}

} // namespace
} // namespace quillon::engine
