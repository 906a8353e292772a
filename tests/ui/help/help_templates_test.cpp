#include "store/catalogue.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/help/shipped_help.h"

#include <QTextDocument>

#include <gmock/gmock.h>

namespace quillon::ui {
namespace {

using ::testing::ElementsAre;

/// A template of the help, put into a catalogue file as its reader would do.
class HelpTemplate : public ::testing::Test
{
protected:
    void Put(const char* templateName, const char* file)
    {
        QTextDocument document;
        document.setHtml(
            test::ElementOfClass(test::ShippedHelp(), QStringLiteral("pre"), QString::fromLatin1(templateName)));
        const std::string text = document.toPlainText().toStdString();
        ASSERT_NE(text.find("\n; "), std::string::npos) << "a template has its comments";
        folder.Put(file, text);
    }

    support::TempFolder folder;
    store::Catalogue catalogue{store::ProgramFolder(folder / "Quillon")};
};

TEST_F(HelpTemplate, AntennaCanBeChosen)
{
    Put("antenna", "Antennas/MY ANTENNAS.DAT");
    EXPECT_THAT(catalogue.LoadAntennaMakers(), ElementsAre("MY ANTENNAS"));
    EXPECT_THAT(catalogue.LoadAntennas("MY ANTENNAS"), ElementsAre("MY 3 EL YAGI"));
    EXPECT_EQ(catalogue.LoadAntennaGainType("MY ANTENNAS", "MY 3 EL YAGI"), "dBi");
    store::BandTable bands;
    EXPECT_THAT(catalogue.LoadAntennaGain("MY ANTENNAS", "MY 3 EL YAGI", bands),
                ElementsAre("20 Meters", "15 Meters", "10 Meters"));
    EXPECT_EQ(bands.at(5).gain, "81");
    EXPECT_EQ(bands.at(7).gain, "84");
    EXPECT_EQ(bands.at(9).gain, "86");
}

TEST_F(HelpTemplate, AntennaNamesEveryBand)
{
    const QString text =
        test::ReadText(test::ElementOfClass(test::ShippedHelp(), QStringLiteral("pre"), QStringLiteral("antenna")));
    for (const std::string_view band : store::kBandSuffixes) {
        EXPECT_TRUE(text.contains(QStringLiteral(" Gain") + QString::fromStdString(std::string(band)) + u' ')) << band;
    }
}

TEST_F(HelpTemplate, CableCanBeChosen)
{
    Put("cable", "Coax/MY CABLES.DAT");
    EXPECT_THAT(catalogue.LoadCableMakers(), ElementsAre("MY CABLES"));
    EXPECT_THAT(catalogue.LoadCableTypes("MY CABLES"), ElementsAre("MY RG-213"));
    std::array<float, 9> losses{};
    const store::CableFigures figures = catalogue.LoadCableLoss("MY CABLES", "MY RG-213", losses);
    EXPECT_THAT(losses, ElementsAre(0.17F, 0.55F, 1.3F, 1.9F, 2.7F, 4.1F, 6.5F, 7.6F, 8.2F));
    EXPECT_EQ(figures.Spec1, 0.405F);
    EXPECT_EQ(figures.Spec2, 50.0F);
}

TEST_F(HelpTemplate, CableWithTwoConstantsCanBeChosen)
{
    Put("kfactors", "Coax/TIMES MICROWAVE.DAT");
    EXPECT_THAT(catalogue.LoadCableTypes("TIMES MICROWAVE"), ElementsAre("MY LMR"));
    std::array<float, 9> constants{};
    const store::CableFigures figures = catalogue.LoadCableKFactors("TIMES MICROWAVE", "MY LMR", constants);
    EXPECT_EQ(constants.at(1), 0.12229F);
    EXPECT_EQ(constants.at(2), 0.00026F);
    EXPECT_EQ(figures.Spec1, 0.405F);
    EXPECT_EQ(figures.Spec2, 50.0F);
}

} // namespace
} // namespace quillon::ui
