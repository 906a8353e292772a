#include "tests/ui/editor/editor_fixture.h"

#include "tests/support/shown_numbers.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace quillon::ui {

namespace {

constexpr const char* kAcme =
    "[XR-5]\r\nGainType=dBi\r\nGain20=71\r\nGain15=78\r\n[A-99]\r\nGainType=dBd\r\nGain10=-16\r\n";
constexpr const char* kIndex = "[ACME]\r\nDateCreated=03/14/2003\r\nLastModified=11/02/2003\r\nNumEntries=2\r\n";

} // namespace

EditorTest::EditorTest()
    : dialog(
          window, catalogue, program, *store, notifier, nullptr,
          {[this] { return ticks; }, [] { return std::chrono::year(2026) / std::chrono::March / std::chrono::day(7); }})
{
    folder.Put("Antennas/ACME.DAT", kAcme);
    folder.Put("Antennas/Mühle.DAT", "[Z]\r\nGainType=dBd\r\n");
    folder.Put("Antennas/ANTENNAS.ZEP", kIndex);
}

void EditorTest::Open()
{
    dialog.Prepare();
    test::ShowActive(dialog);
}

std::string EditorTest::Text(const std::string& name)
{
    const QWidget& widget = Find(name);
    const char* property = qobject_cast<const QComboBox*>(&widget) != nullptr ? "currentText" : "text";
    return support::WithPoint(widget.property(property).toString());
}

std::string EditorTest::Entries(const std::string& list)
{
    QStringList entries;
    for (int index = 0; index < List(list).count(); ++index) {
        entries << List(list).itemText(index);
    }
    return entries.join(u'|').toStdString();
}

std::string EditorTest::Gains()
{
    QStringList gains;
    for (int index = 1; index <= 14; ++index) {
        gains << Box(Of("txtGainFigure", index)).text();
    }
    return support::WithPoint(gains.join(u'|'));
}

std::string EditorTest::Bands()
{
    std::string bands;
    for (int index = 1; index <= 14; ++index) {
        bands += Find<QAbstractButton>(Of("chkBands", index)).isChecked() ? 'x' : '.';
    }
    int type = 0;
    for (const int option : {1, 2}) {
        type += Find<QAbstractButton>(Of("optGainType", option)).isChecked() ? option : 0;
    }
    return bands + " " + std::to_string(type);
}

std::string EditorTest::FileInfo()
{
    return Text("lblFileInfo(3)") + "|" + Text("lblFileInfo(4)") + "|" + Text("lblFileInfo(5)");
}

std::string EditorTest::Focus()
{
    return dialog.focusWidget() != nullptr ? dialog.focusWidget()->objectName().toStdString() : "";
}

bool EditorTest::IsEditable()
{
    int editable = 0;
    for (int index = 1; index <= 14; ++index) {
        editable += Box(Of("txtGainFigure", index)).isReadOnly() ? 0 : 1;
        editable += Find(Of("chkBands", index)).isEnabled() ? 1 : 0;
    }
    editable += Find("optGainType(1)").isEnabled() ? 1 : 0;
    editable += Find("optGainType(2)").isEnabled() ? 1 : 0;
    editable += Find("cmdSave").isEnabled() ? 1 : 0;
    EXPECT_TRUE(editable == 0 || editable == 31) << editable;
    return editable == 31;
}

void EditorTest::Choose(const std::string& list, const std::string& entry)
{
    const int index = List(list).findText(QString::fromStdString(entry));
    if (index < 0) {
        throw std::runtime_error("no entry \"" + entry + "\" in " + list + ": " + Entries(list));
    }
    List(list).Choose(index);
}

void EditorTest::Edit(const std::string& maker, const std::string& model)
{
    ChooseMaker(maker);
    ChooseModel(model);
    Click("cmdEdit");
}

void EditorTest::Click(const std::string& name)
{
    // A check box answers at its caption, which is shorter than the room that it has.
    QWidget& widget = Find(name);
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget.height() / 2));
}

void EditorTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    test::Click(dialog, key, modifiers);
}

void EditorTest::Answer(bool isOk)
{
    QTimer::singleShot(0, &dialog, [this, isOk] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        questions.push_back({box->text().toStdString(), box->windowTitle().toStdString(),
                             box->defaultButton() == box->button(QMessageBox::Cancel)});
        box->button(isOk ? QMessageBox::Ok : QMessageBox::Cancel)->click();
    });
}

} // namespace quillon::ui
