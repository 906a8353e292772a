#include "tests/ui/main/window_fixture.h"
#include "ui/editor/edit_antennas.h"

#include <QAbstractButton>
#include <QTest>

#include <memory>
#include <optional>

namespace quillon::ui {
namespace {

/// The real main window beside the editor, both over one program folder.
class EditorBesideMainWindow : public WindowTest
{
protected:
    void SetUp() override
    {
        Open();
        editor.emplace(Window(), catalogue, program, *store, notifier);
        editor->Prepare();
        editor->show();
    }

    void ChooseIn(const char* list, const char* entry)
    {
        auto& box = test::Find<CatalogueListBox>(*editor, QString::fromUtf8(list));
        box.Choose(box.findText(QString::fromUtf8(entry)));
    }

    void Click(const char* name) { test::Find<QAbstractButton>(*editor, QString::fromUtf8(name)).click(); }

    void Enter(const char* box, const char* text)
    {
        auto& line = test::Find<QLineEdit>(*editor, QString::fromUtf8(box));
        line.setText(QString::fromUtf8(text));
        QTest::keyClick(&line, Qt::Key_Return);
    }

    std::shared_ptr<store::ProfileStore> store = std::make_shared<store::ProfileStore>();
    store::ProgramFolder program{folder / "Quillon"};
    store::Catalogue catalogue{program, store};
    std::optional<EditAntennas> editor;
};

TEST_F(EditorBesideMainWindow, SavedGainIsInForceAtOnceWhereTheModelIsChosen)
{
    Choose("cboSystemTwoAntenna(0)", "WIRECRAFT");
    Choose("cboSystemTwoAntenna(1)", "BEAM FOUR");
    Choose("cboSystemTwoAntenna(2)", "20 Meters");
    EXPECT_EQ(Text("lblAntennaBand(2)"), "Gain = 5 dbd");
    ChooseIn("cboAntennaMakers", "WIRECRAFT");
    ChooseIn("cboAntennaModels", "BEAM FOUR");
    Click("cmdEdit");
    test::Find<QLineEdit>(*editor, QStringLiteral("txtGainFigure(6)")).setText(QStringLiteral("9"));
    Click("optGainType(1)");
    Click("cmdSave");
    EXPECT_EQ(Text("lblAntennaBand(2)"), "Gain = 9 dbd");
    EXPECT_EQ(systems.Data[engine::SystemId::Two].AntennaGain, 9.0F);
    EXPECT_EQ(Text("cboSystemTwoAntenna(1)"), "BEAM FOUR");
    EXPECT_EQ(Text("cboSystemTwoAntenna(2)"), "20 Meters");
}

TEST_F(EditorBesideMainWindow, NewMakerAndModelAreListedAndTheChosenOnesStay)
{
    Choose("cboSystemOneAntenna(0)", "HALO");
    Choose("cboSystemOneAntenna(1)", "LOOP");
    ChooseIn("cboAntennaMakers", "HALO");
    Click("cmdAddNewModel");
    Enter("txtAntennaModel", "SQUARE");
    EXPECT_EQ(Entries("cboSystemOneAntenna(1)"), "LOOP|SQUARE");
    Click("cmdAddNewBrand");
    Enter("txtAntennaBrand", "ACME");
    EXPECT_EQ(Entries("cboSystemOneAntenna(0)"), "ACME|HALO|Hamwire|WIRECRAFT|alpha");
    EXPECT_EQ(Text("cboSystemOneAntenna(0)"), "HALO");
    EXPECT_EQ(Text("cboSystemOneAntenna(1)"), "LOOP");
    EXPECT_TRUE(notifier.Messages().empty());
}

} // namespace
} // namespace quillon::ui
