#include "ui/systems/pair_dialog.h"

#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/shown_window.h"
#include "tests/ui/systems/systems_fixture.h"
#include "ui/systems/load_system.h"
#include "ui/systems/save_system.h"
#include "ui/widgets/object_names.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace quillon::ui {
namespace {

using engine::SystemId;

class PairDialogTest : public SystemsTest
{
protected:
    PairDialogTest()
    {
        Put("[SavedSystems]\nSystem:1=A\n");
        engine::SystemData& data = window.Systems().Data[SystemId::One];
        data.AntennaBrand = "A brand of 25 characters!";
        data.AntennaModel = "WWWWWWWWWWWWWWWWWWWWWWWWW";
        save.Prepare();
        load.Prepare();
    }

    SaveSystem save{window, readWrite, store, notifier};
    LoadSystem load{window, readWrite, store, notifier};
    const std::vector<PairDialog*> dialogs{&save, &load};
};

TEST_F(PairDialogTest, FramesCarryTheirCaptions)
{
    EXPECT_EQ(test::Find<QGroupBox>(save, QStringLiteral("frame")).title(),
              QStringLiteral("Enter a Name for the Antenna Systems"));
    EXPECT_EQ(test::Find<QGroupBox>(load, QStringLiteral("FrameAntSystem")).title(),
              QStringLiteral("Select an Antenna System"));
    for (const PairDialog* dialog : dialogs) {
        EXPECT_EQ(test::Find<QGroupBox>(*dialog, QStringLiteral("FrameSystemOne")).title(),
                  QStringLiteral("Antenna System One"));
        EXPECT_EQ(test::Find<QGroupBox>(*dialog, QStringLiteral("FrameSystemTwo")).title(),
                  QStringLiteral("Antenna System Two"));
    }
}

TEST_F(PairDialogTest, LinesStandInTheirSystemsFrames)
{
    for (const auto& [dialog, name] : {std::pair<PairDialog*, const char*>(&save, "lblSave"), {&load, "lblSelect"}}) {
        for (int place = 0; place < 4; ++place) {
            const auto& label = test::Find<QLabel>(*dialog, IndexedName(QString::fromUtf8(name), place));
            EXPECT_EQ(label.parentWidget()->objectName(),
                      place < 2 ? QStringLiteral("FrameSystemOne") : QStringLiteral("FrameSystemTwo"));
            EXPECT_EQ(label.textFormat(), Qt::PlainText);
            EXPECT_EQ(label.buddy(), nullptr) << "which would eat ampersands";
        }
    }
}

TEST_F(PairDialogTest, ScreenReadersHearWhatTheFieldIsFor)
{
    EXPECT_EQ(test::Find<QWidget>(save, QStringLiteral("txtSystemName")).accessibleName(),
              QStringLiteral("Enter a Name for the Antenna Systems"));
    EXPECT_EQ(test::Find<QWidget>(load, QStringLiteral("cboSavedSystems")).accessibleName(),
              QStringLiteral("Select an Antenna System"));
}

TEST_F(PairDialogTest, NoButtonIsPressedByEnterElsewhere)
{
    for (const PairDialog* dialog : dialogs) {
        for (const QPushButton* button : dialog->findChildren<QPushButton*>()) {
            EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
        }
    }
}

TEST_F(PairDialogTest, TabGoesFromTheFieldToTheButtons)
{
    for (const auto& [dialog, order] :
         {std::pair<PairDialog*, QStringList>(&save, {"txtSystemName", "cmdSave", "cmdCancel", "txtSystemName"}),
          {&load, {"cboSavedSystems", "cmdLoad", "cmdCancel", "cboSavedSystems"}}}) {
        test::ShowActive(*dialog);
        QStringList visited{dialog->focusWidget()->objectName()};
        for (int step = 1; step < 4; ++step) {
            test::Click(*dialog, Qt::Key_Tab);
            visited.append(dialog->focusWidget()->objectName());
        }
        EXPECT_EQ(visited, order);
    }
}

TEST_F(PairDialogTest, BothHaveOneGeometryAndLongNamesDoNotWidenIt)
{
    EXPECT_EQ(save.sizeHint().width(), load.sizeHint().width());
    const int width = save.sizeHint().width();
    window.Systems() = {};
    save.Prepare();
    EXPECT_EQ(save.sizeHint().width(), width);
}

TEST_F(PairDialogTest, CardsAndButtonsOfAKindAreEquallyWide)
{
    for (PairDialog* dialog : dialogs) {
        test::ShowActive(*dialog);
        const auto& one = test::Find<QWidget>(*dialog, QStringLiteral("FrameSystemOne"));
        const auto& two = test::Find<QWidget>(*dialog, QStringLiteral("FrameSystemTwo"));
        EXPECT_LE(std::abs(one.width() - two.width()), 1);
        EXPECT_EQ(one.y(), two.y());
        const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
        EXPECT_EQ(buttons.at(0)->width(), buttons.at(1)->width());
    }
}

TEST_F(PairDialogTest, ButtonsGrowWithTheFontAtTheNextOpening)
{
    const test::ApplicationFont font;
    const int before = test::Find<QPushButton>(save, QStringLiteral("cmdCancel")).minimumWidth();
    test::ApplicationFont::SetPointSize(2 * QApplication::font().pointSizeF());
    save.Prepare();
    EXPECT_GT(test::Find<QPushButton>(save, QStringLiteral("cmdCancel")).minimumWidth(), before);
}

TEST_F(PairDialogTest, EnterHeldDownPressesAButtonOnce)
{
    test::ShowActive(save);
    auto& button = test::Find<QPushButton>(save, QStringLiteral("cmdSave"));
    button.setFocus();
    for (const bool isRepeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), isRepeated);
        QApplication::sendEvent(&button, &press);
    }
    EXPECT_TRUE(save.isVisible());
    EXPECT_EQ(button.text(), QStringLiteral("&Close"));
}

} // namespace
} // namespace quillon::ui
