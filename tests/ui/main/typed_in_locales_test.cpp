#include "tests/ui/main/window_fixture.h"

namespace quillon::ui {
namespace {

/// What a person types, where, and what it means there.
struct TypedRow
{
    const char* name;
    const char* locale;
    const char* text;
    std::optional<float> value; ///< nothing where it is no number
};

class TypedInLocale : public EachSystemRow<TypedRow>
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(Case().locale)));
        Open();
    }

    /// Types into a box, and looks what it made of the record's figure.
    void ExpectTyped(const std::string& box, const float& figure)
    {
        Type(box, "7");
        EXPECT_EQ(figure, 7.0F) << box;
        Type(box, Case().text);
        EXPECT_EQ(Box(box).text().toStdString(), Case().text) << box;
        EXPECT_EQ(IsMarked(box), !Case().value.has_value()) << box;
        // Bad text leaves the last good figure: what stands before the sign was typed first.
        EXPECT_EQ(figure, Case().value.value_or(14.0F)) << box;
    }
};

TEST_P(TypedInLocale, MeansWhatItsUserMeans)
{
    ExpectTyped(Own("txtOutputPower"), Data().XmitPower);
    ExpectTyped(Own("txtFrequency"), Data().Frequency);
    ExpectTyped(Spelled("txtSystem%CoaxLength"), Data().CoaxLength);
}

TEST_P(TypedInLocale, CountsWholeConnectors)
{
    const std::string box = Spelled("txtSystem%NumConnectors");
    Type(box, Case().text);
    EXPECT_EQ(IsMarked(box), !Case().value.has_value());
    EXPECT_EQ(Data().Connectors, 14);
}

TEST_P(TypedInLocale, AsGainAndLossOfSystemOne)
{
    const engine::SystemData& one = systems.Data[engine::SystemId::One];
    for (const char* box : {"txtAntennaGain", "txtCoaxLoss"}) {
        Box(box).setEnabled(true);
    }
    ExpectTyped("txtAntennaGain", one.AntennaGain);
    ExpectTyped("txtCoaxLoss", one.CoaxLoss);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Locales, TypedInLocale,
    ::testing::Combine(BothSystems(), ::testing::Values(
        TypedRow{"C point", "C", "14.25", 14.25F},
        TypedRow{"C comma", "C", "14,25", std::nullopt},
        TypedRow{"German point", "de_DE", "14.25", 14.25F},
        TypedRow{"German comma", "de_DE", "14,25", 14.25F},
        TypedRow{"French point", "fr_FR", "14.25", 14.25F},
        TypedRow{"French comma", "fr_FR", "14,25", 14.25F},
        TypedRow{"Polish point", "pl_PL", "14.25", 14.25F},
        TypedRow{"Polish comma", "pl_PL", "14,25", 14.25F},
        TypedRow{"Turkish point", "tr_TR", "14.25", 14.25F},
        TypedRow{"Turkish comma", "tr_TR", "14,25", 14.25F})),
    SystemName());
// clang-format on

} // namespace
} // namespace quillon::ui
