#include "ui/widgets/typed_number.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon::ui {
namespace {

struct NumberRow
{
    const char* name;
    const char* text;
    std::optional<float> value;
};

class TypedNumber : public ::testing::TestWithParam<NumberRow>
{
};

TEST_P(TypedNumber, IsRead)
{
    const Typed<float> number = ReadNumber(QString::fromUtf8(GetParam().text), QLocale::c());
    EXPECT_EQ(number.value, GetParam().value);
    EXPECT_EQ(number.problem.isEmpty(), GetParam().value.has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TypedNumber,
    ::testing::Values(NumberRow{"whole", "100", 100.0F}, NumberRow{"fraction", "14.25", 14.25F},
                      NumberRow{"no leading zero", ".5", 0.5F}, NumberRow{"trailing point", "5.", 5.0F},
                      NumberRow{"negative", "-3.5", -3.5F}, NumberRow{"blanks around", " 7 ", 7.0F},
                      NumberRow{"exponent", "1e3", 1000.0F}, NumberRow{"largest", "3.4028234e38", 3.4028234e38F},
                      NumberRow{"just too large", "3.5e38", std::nullopt},
                      NumberRow{"too small is zero", "1e-60", 0.0F}, NumberRow{"empty", "", std::nullopt},
                      NumberRow{"words", "ten", std::nullopt}, NumberRow{"two signs", "--1", std::nullopt},
                      NumberRow{"inner blank", "1 000", std::nullopt},
                      NumberRow{"one letter behind", "5W", std::nullopt}),
    support::RowName());

TEST(TypedDouble, KeepsWhat32BitsWouldLose)
{
    EXPECT_EQ(ReadDouble(QStringLiteral("5.05"), QLocale::c()).value, 5.05);
    EXPECT_EQ(ReadDouble(QStringLiteral("3.5e38"), QLocale::c()).value, 3.5e38);
    EXPECT_EQ(ReadDouble(QStringLiteral("1e309"), QLocale::c()).problem, QStringLiteral("“1e309” is too large"));
    EXPECT_EQ(ReadDouble(QStringLiteral("nan"), QLocale::c()).problem, QStringLiteral("“nan” is not a number"));
}

/// Texts that the window writes itself: the engine's digits with a locale's separator.
TEST(EveryLocale, ReadsBackWhatTheWindowWrites)
{
    std::set<QString> separators;
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const QString text = QStringLiteral("14") + locale.decimalPoint() + QStringLiteral("250");
        EXPECT_EQ(ReadNumber(text, locale).value, 14.25F) << locale.name().toStdString();
        EXPECT_EQ(ReadNumber(QStringLiteral("-5"), locale).value, -5.0F) << locale.name().toStdString();
        EXPECT_EQ(ReadNumber(QStringLiteral("14.25"), locale).value, 14.25F) << locale.name().toStdString();
        EXPECT_EQ(ReadWholeNumber(QStringLiteral("24"), locale).value, 24) << locale.name().toStdString();
        separators.insert(locale.decimalPoint());
    }
    EXPECT_GE(separators.size(), 3U); // point, comma, Arabic separator
}

} // namespace
} // namespace quillon::ui
