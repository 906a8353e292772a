#include "tests/support/row_name.h"
#include "tests/ui/editor/editor_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace quillon::ui {
namespace {

struct ControlRow
{
    const char* name;
    const char* kind;
    const char* caption;
    const char* toolTip;
};

class Control : public EditorTest, public ::testing::WithParamInterface<ControlRow>
{
};

TEST_P(Control, HasItsNameKindCaptionAndToolTip)
{
    const ControlRow& row = GetParam();
    const QWidget& control = Find(row.name);
    EXPECT_TRUE(control.inherits(row.kind)) << control.metaObject()->className();
    const char* property = control.inherits("QGroupBox") ? "title" : "text";
    EXPECT_EQ(control.property(property).toString().toStdString(), row.caption);
    EXPECT_EQ(control.toolTip().toStdString(), row.toolTip);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Control, ::testing::Values(
    ControlRow{"FrameAntennas", "QGroupBox", "Make Antenna Brand && Model Selections", ""},
    ControlRow{"lblAntennas(0)", "QLabel", "1: Select an Antenna Manufacturer", ""},
    ControlRow{"lblAntennas(1)", "QLabel", "2: Select an Antenna Model", ""},
    ControlRow{"lblAntennas(2)", "QLabel", "3: Click Edit, Make Changes, Then Click Save", ""},
    ControlRow{"cboAntennaMakers", "QComboBox", "", ""},
    ControlRow{"cboAntennaModels", "QComboBox", "", ""},
    ControlRow{"txtAntennaBrand", "QLineEdit", "", ""},
    ControlRow{"txtAntennaModel", "QLineEdit", "", ""},
    ControlRow{"cmdAddNewBrand", "QPushButton", "Add New &Brand", "Click to add new antenna manufacturer"},
    ControlRow{"cmdAddNewModel", "QPushButton", "Add New &Model", "Click to add new antenna model"},
    ControlRow{"cmdEdit", "QPushButton", "&Edit Selection", "Click to edit selected antenna system"},
    ControlRow{"cmdSave", "QPushButton", "&Save Changes", "Click to save antenna system changes"},
    ControlRow{"cmdClose", "QPushButton", "&Close", ""},
    ControlRow{"FrameFields", "QGroupBox", "Edit Data Fields", ""},
    ControlRow{"lblBands(0)", "QLabel", "Select Bands of Operation", ""},
    ControlRow{"lblBands(1)", "QLabel", "Gain Figure", ""},
    ControlRow{"lblBands(2)", "QLabel", "Gain Figure", ""},
    ControlRow{"chkBands(1)", "QCheckBox", "160 Meters", ""},
    ControlRow{"chkBands(2)", "QCheckBox", "75 Meters", ""},
    ControlRow{"chkBands(3)", "QCheckBox", "60 Meters", ""},
    ControlRow{"chkBands(4)", "QCheckBox", "40 Meters", ""},
    ControlRow{"chkBands(5)", "QCheckBox", "30 Meters", ""},
    ControlRow{"chkBands(6)", "QCheckBox", "20 Meters", ""},
    ControlRow{"chkBands(7)", "QCheckBox", "17 Meters", ""},
    ControlRow{"chkBands(8)", "QCheckBox", "15 Meters", ""},
    ControlRow{"chkBands(9)", "QCheckBox", "12 Meters", ""},
    ControlRow{"chkBands(10)", "QCheckBox", "10 Meters", ""},
    ControlRow{"chkBands(11)", "QCheckBox", "6  Meters", ""},
    ControlRow{"chkBands(12)", "QCheckBox", "2 Meters", ""},
    ControlRow{"chkBands(13)", "QCheckBox", "1.25 Meters", ""},
    ControlRow{"chkBands(14)", "QCheckBox", ".70 Meters", ""},
    ControlRow{"txtGainFigure(1)", "QLineEdit", "", ""},
    ControlRow{"txtGainFigure(14)", "QLineEdit", "", ""},
    ControlRow{"optGainType(1)", "QRadioButton", "Gain in dBd", "Select if all gain figures are in dBd"},
    ControlRow{"optGainType(2)", "QRadioButton", "Gain in dBi", "Select if all gain figures are in dBi"},
    ControlRow{"lblFileInfo(0)", "QLabel", "Number of  Entries", ""},
    ControlRow{"lblFileInfo(1)", "QLabel", "Date File Created", ""},
    ControlRow{"lblFileInfo(2)", "QLabel", "Date Last Modified", ""},
    ControlRow{"lblFileInfo(3)", "QLabel", "", ""},
    ControlRow{"lblFileInfo(4)", "QLabel", "", ""},
    ControlRow{"lblFileInfo(5)", "QLabel", "", ""},
    ControlRow{"lblStatus", "QLabel", "", ""}), support::RowName());

// clang-format on

class OpeningTest : public EditorTest
{
protected:
    /// Checks that nothing is left of what went before.
    void ExpectDesign()
    {
        EXPECT_EQ(Text("cboAntennaMakers") + Text("cboAntennaModels"), "");
        EXPECT_FALSE(List("cboAntennaMakers").HasChoice());
        EXPECT_EQ(Entries("cboAntennaModels"), "");
        EXPECT_EQ(Text("txtAntennaBrand") + Text("txtAntennaModel"), "");
        EXPECT_FALSE(Box("txtAntennaBrand").isEnabled() || Box("txtAntennaModel").isEnabled());
        EXPECT_EQ(Gains(), kNoGains);
        EXPECT_EQ(Bands(), kNoBands);
        EXPECT_EQ(FileInfo(), "||");
        EXPECT_EQ(Text("lblStatus"), "");
        EXPECT_FALSE(test::Find<QTimer>(dialog, QStringLiteral("TimerStatusMsg")).isActive());
        EXPECT_FALSE(IsEditable());
        EXPECT_TRUE(Find("cmdAddNewBrand").isEnabled() && Find("cmdClose").isEnabled());
        EXPECT_FALSE(Find("cmdAddNewModel").isEnabled() || Find("cmdEdit").isEnabled());
        EXPECT_EQ(Focus(), "cboAntennaMakers");
    }
};

TEST_F(OpeningTest, ListsTheMakersAndWaitsForAChoice)
{
    Open();
    EXPECT_EQ(dialog.objectName(), QStringLiteral("EditAntennas"));
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Manage Antenna Database"));
    EXPECT_EQ(Entries("cboAntennaMakers"), "ACME|Mühle");
    ExpectDesign();
    EXPECT_TRUE(window.Calls().empty());
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(OpeningTest, SecondOpeningStartsFromTheDesignedState)
{
    Open();
    Edit("ACME", "XR-5");
    Click("cmdAddNewBrand");
    Paste("txtAntennaBrand", "left");
    Click("cmdAddNewModel");
    Paste("txtAntennaModel", "over");
    Paste("txtGainFigure(1)", "x");
    dialog.reject();
    folder.Put("Antennas/NEW.DAT", "");
    Open();
    EXPECT_EQ(Entries("cboAntennaMakers"), "ACME|Mühle|NEW");
    ExpectDesign();
    EXPECT_FALSE(Box("txtGainFigure(1)").property("marked").toBool());
}

TEST_F(OpeningTest, IsModal)
{
    bool wasModal = false;
    QTimer::singleShot(0, &dialog, [&] {
        wasModal = dialog.isModal() && dialog.isVisible();
        Click("cmdClose");
    });
    dialog.Open();
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(OpeningTest, EscCloses)
{
    Open();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(OpeningTest, ClosingWithUnsavedChangesAsksNothingAndWritesNothing)
{
    Open();
    const std::string before = File("ACME.DAT");
    Edit("ACME", "XR-5");
    Paste("txtGainFigure(6)", "1");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(File("ACME.DAT"), before);
}

TEST_F(OpeningTest, EveryLabelIsPlainTextAndValuesAreNoBuddies)
{
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    for (const int index : {3, 4, 5}) {
        EXPECT_EQ(Find<QLabel>(Of("lblFileInfo", index)).buddy(), nullptr) << "which would eat ampersands";
    }
}

TEST_F(OpeningTest, ScreenReadersHearWhatAFieldIsFor)
{
    Open();
    ChooseMaker("ACME");
    EXPECT_EQ(Find("cboAntennaMakers").accessibleName(), QStringLiteral("Antenna manufacturer"));
    EXPECT_EQ(Find("cboAntennaModels").accessibleName(), QStringLiteral("Antenna model"));
    EXPECT_EQ(Find("txtAntennaBrand").accessibleName(), QStringLiteral("New antenna manufacturer"));
    EXPECT_EQ(Find("txtAntennaModel").accessibleName(), QStringLiteral("New antenna model"));
    EXPECT_EQ(Find("txtGainFigure(6)").accessibleName(), QStringLiteral("Gain Figure, 20 Meters"));
    EXPECT_EQ(Find("lblFileInfo(3)").accessibleName(), QStringLiteral("Number of Entries: 2"));
    EXPECT_EQ(Find("lblFileInfo(4)").accessibleName(), QStringLiteral("Date File Created: 03/14/2003"));
    EXPECT_TRUE(Find<QLabel>("lblAntennas(0)").buddy() == &List("cboAntennaMakers"));
    EXPECT_TRUE(Find<QLabel>("lblAntennas(1)").buddy() == &List("cboAntennaModels"));
}

TEST_F(OpeningTest, TabGoesThroughAllFieldsInReadingOrder)
{
    Open();
    Edit("ACME", "XR-5");
    Click("cmdAddNewBrand");
    Click("cmdAddNewModel");
    List("cboAntennaMakers").setFocus();
    std::vector<std::string> wanted{"cboAntennaMakers", "txtAntennaBrand", "cmdAddNewBrand", "cboAntennaModels",
                                    "txtAntennaModel",  "cmdAddNewModel",  "cmdEdit",        "cmdSave"};
    for (int index = 1; index <= 14; ++index) {
        wanted.push_back(Of("chkBands", index));
        wanted.push_back(Of("txtGainFigure", index));
    }
    // Of two options the Tab key stops at one, the arrow keys go on to the other.
    wanted.insert(wanted.end(), {"optGainType(1)", "cmdClose", "cboAntennaMakers"});
    std::vector<std::string> visited{Focus()};
    while (visited.size() < wanted.size()) {
        Press(Qt::Key_Tab);
        visited.push_back(Focus());
    }
    for (std::size_t step = 0; step < wanted.size(); ++step) {
        EXPECT_EQ(visited.at(step), wanted.at(step)) << step;
    }
}

TEST_F(OpeningTest, NoButtonIsPressedByEnterElsewhere)
{
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
    }
    Open();
    Edit("ACME", "XR-5");
    Box("txtGainFigure(3)").setFocus();
    Press(Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Text("lblStatus"), "");
}

TEST_F(OpeningTest, EnterPressesTheButtonThatHasTheFocus)
{
    Open();
    ChooseMaker("ACME");
    ChooseModel("XR-5");
    Find("cmdEdit").setFocus();
    Press(Qt::Key_Return);
    EXPECT_TRUE(IsEditable());
}

struct AccessKeyRow
{
    const char* name;
    Qt::Key key;
    const char* outcome;
};

class AccessKey : public EditorTest, public ::testing::WithParamInterface<AccessKeyRow>
{
};

TEST_P(AccessKey, PressesItsButton)
{
    Open();
    Edit("ACME", "XR-5");
    Press(GetParam().key, Qt::AltModifier);
    const auto outcome = [this] { return dialog.isVisible() ? Focus() + " " + Text("lblStatus") : "closed"; };
    // A button shows for a moment that it is being pressed.
    EXPECT_TRUE(QTest::qWaitFor([&] { return outcome() == GetParam().outcome; })) << outcome();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Buttons, AccessKey, ::testing::Values(
    AccessKeyRow{"brand", Qt::Key_B, "txtAntennaBrand Type in the antenna brand then press enter."},
    AccessKeyRow{"model", Qt::Key_M, "txtAntennaModel Type in the antenna model then press enter."},
    AccessKeyRow{"save", Qt::Key_S, "cboAntennaModels Changes saved."},
    AccessKeyRow{"close", Qt::Key_C, "closed"}), support::RowName());

// clang-format on

} // namespace
} // namespace quillon::ui
