#include "tests/app/dialogs_fixture.h"
#include "tests/ui/main/test_catalogue.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QComboBox>
#include <QLineEdit>

namespace quillon {
namespace {

using ui::Command;

class CancelledLoad : public DialogsTest
{
protected:
    CancelledLoad()
        : DialogsTest(&ui::PutCatalogues)
    {
    }

    void Choose(const char* list, const char* entry)
    {
        auto& box = test::Find<ui::CatalogueListBox>(Main(), QString::fromLatin1(list));
        box.Choose(box.findText(QString::fromLatin1(entry)));
    }

    void TypePower(const char* watts)
    {
        test::Find<QLineEdit>(Main(), QStringLiteral("txtOutputPower(1)")).setText(QString::fromLatin1(watts));
    }

    /// A figure with a point, whatever the locale has in its place.
    std::string Shown(const char* label)
    {
        QString text = test::Find<QLabel>(Main(), QString::fromLatin1(label)).text();
        return text.replace(Main().locale().decimalPoint(), QStringLiteral(".")).toStdString();
    }

    std::string Band()
    {
        return test::Find<QComboBox>(Main(), QStringLiteral("cboSystemOneAntenna(2)")).currentText().toStdString();
    }
};

TEST_F(CancelledLoad, OfAnEntryOnceSelectedShowsTheOldFiguresUntilTheNextRecalculationAsGiven)
{
    Choose("cboSystemOneCoax(0)", "CABLEWORKS");
    Choose("cboSystemOneCoax(1)", "RG-8X");
    Choose("cboSystemOneAntenna(0)", "WIRECRAFT");
    Choose("cboSystemOneAntenna(1)", "BEAM FOUR");
    Choose("cboSystemOneAntenna(2)", "20 Meters");
    EXPECT_EQ(Shown("lblAntennaGain(1)"), "5.00");
    Give(Command::SaveSystem, [](QDialog& dialog) {
        test::Find<QLineEdit>(dialog, QStringLiteral("txtSystemName")).setText(QStringLiteral("at 20 m"));
        test::Find<QPushButton>(dialog, QStringLiteral("cmdSave")).click();
    });
    Choose("cboSystemOneAntenna(2)", "15 Meters");
    const std::string gain = Shown("lblAntennaGain(1)");
    const std::string power = Shown("lblERP(1)");
    ASSERT_NE(gain, "5.00");

    Give(Command::LoadSystem, [](QDialog& dialog) {
        auto& pairs = test::Find<QComboBox>(dialog, QStringLiteral("cboSavedSystems"));
        emit pairs.activated(pairs.currentIndex());
        test::Find<QPushButton>(dialog, QStringLiteral("cmdCancel")).click();
    });
    EXPECT_EQ(SystemOne().AntennaGain, 5);
    EXPECT_EQ(Shown("lblAntennaGain(1)"), gain);
    EXPECT_EQ(Shown("lblERP(1)"), power);
    EXPECT_EQ(Band(), "15 Meters");

    TypePower("150");
    EXPECT_EQ(Shown("lblAntennaGain(1)"), "5.00");
    EXPECT_EQ(Band(), "15 Meters");
}

} // namespace
} // namespace quillon
