#include "tests/ui/main/window_fixture.h"

#include "tests/support/shown_numbers.h"
#include "tests/support/shown_window.h"
#include "tests/ui/main/test_catalogue.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTest>

#include <cctype>
#include <stdexcept>
#include <utility>

namespace quillon::ui {

namespace {

std::string Spell(const std::string& pattern, engine::SystemId system)
{
    const std::size_t place = pattern.find('%');
    return std::string(pattern).replace(place, 1, system == engine::SystemId::One ? "One" : "Two");
}

std::string Indexed(const std::string& name, int index)
{
    return name + "(" + std::to_string(index) + ")";
}

void Click(QWidget& spin, int y, int times)
{
    for (int click = 0; click < times; ++click) {
        QTest::mouseClick(&spin, Qt::LeftButton, {}, QPoint(spin.width() / 2, y));
    }
}

} // namespace

WindowTest::WindowTest()
{
    PutCatalogues(folder);
}

WindowTest::~WindowTest()
{
    QLocale::setDefault(QLocale::system());
}

Quillon& WindowTest::Make()
{
    m_catalogue = std::make_unique<store::Catalogue>(store::ProgramFolder(folder / "Quillon"),
                                                     std::make_shared<store::ProfileStore>(calls));
    m_window = std::make_unique<Quillon>(QuillonParts{systems, hooks, notifier, *m_catalogue});
    return *m_window;
}

void WindowTest::Open()
{
    Make().Load();
    test::ShowActive(*m_window);
}

std::string WindowTest::Text(const std::string& name)
{
    auto& widget = Find(name);
    QString text;
    if (const auto* label = qobject_cast<QLabel*>(&widget); label != nullptr) {
        text = label->text();
    } else if (const auto* box = qobject_cast<QLineEdit*>(&widget); box != nullptr) {
        text = box->text();
    } else if (const auto* list = qobject_cast<QComboBox*>(&widget); list != nullptr) {
        text = list->currentText();
    } else if (const auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr) {
        text = button->text();
    } else {
        throw std::runtime_error("no text in " + name);
    }
    return support::WithPoint(text);
}

std::string WindowTest::ToolTip(const std::string& name)
{
    return support::WithPoint(Find(name).toolTip());
}

std::string WindowTest::AccessibleName(const std::string& name)
{
    return support::WithPoint(Find(name).accessibleName());
}

std::string WindowTest::AccessibleDescription(const std::string& name)
{
    return support::WithPoint(Find(name).accessibleDescription());
}

bool WindowTest::IsFilled(const std::string& marker)
{
    const QVariant filled = Find(marker).property("filled");
    EXPECT_TRUE(filled.isValid()) << marker;
    return filled.toBool();
}

bool WindowTest::IsMarked(const std::string& name)
{
    const QVariant marked = Find(name).property("marked");
    EXPECT_TRUE(marked.isValid()) << name;
    return marked.toBool();
}

std::string WindowTest::Entries(const std::string& list)
{
    QStringList entries;
    for (int index = 0; index < List(list).count(); ++index) {
        entries.append(List(list).itemText(index));
    }
    return entries.join(u'|').toStdString();
}

void WindowTest::Paste(const std::string& box, const std::string& text)
{
    Box(box).selectAll();
    Box(box).insert(QString::fromStdString(text));
}

void WindowTest::Type(const std::string& box, const std::string& text)
{
    Box(box).setFocus();
    Box(box).selectAll();
    QTest::keyClicks(&Box(box), QString::fromStdString(text));
}

void WindowTest::Press(Qt::Key key)
{
    test::Click(*m_window, key);
}

void WindowTest::Type(const std::string& text)
{
    test::Type(*m_window, QString::fromStdString(text));
}

void WindowTest::ClickUp(const std::string& spin, int times)
{
    Click(Spin(spin), Spin(spin).height() / 4, times);
}

void WindowTest::ClickDown(const std::string& spin, int times)
{
    Click(Spin(spin), 3 * Spin(spin).height() / 4, times);
}

void WindowTest::Choose(const std::string& list, const std::string& entry)
{
    const int index = List(list).findText(QString::fromStdString(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        throw std::runtime_error("no entry " + entry + " in " + list);
    }
    List(list).Choose(index);
}

std::string SystemTest::Own(const std::string& name) const
{
    return Indexed(name, Number());
}

std::string SystemTest::Pair(const std::string& name, int part) const
{
    return Indexed(name, 2 * (Number() - 1) + part);
}

std::string SystemTest::Spelled(const std::string& pattern) const
{
    return Spell(pattern, System());
}

std::string SystemTest::Spelled(const std::string& pattern, int index) const
{
    return Indexed(Spell(pattern, System()), index);
}

void SystemTest::ChooseCoax(const std::string& brand, const std::string& type)
{
    Choose(Spelled("cboSystem%Coax", 0), brand);
    Choose(Spelled("cboSystem%Coax", 1), type);
}

void SystemTest::ChooseAntenna(const std::string& brand, const std::string& model, const std::string& band)
{
    Choose(Spelled("cboSystem%Antenna", 0), brand);
    Choose(Spelled("cboSystem%Antenna", 1), model);
    Choose(Spelled("cboSystem%Antenna", 2), band);
}

std::string TestName(engine::SystemId system, std::string row)
{
    for (char& character : row) {
        if (std::isalnum(static_cast<unsigned char>(character)) == 0) {
            character = '_';
        }
    }
    const std::string name = "System" + std::to_string(engine::Number(system));
    return row.empty() ? name : name + "_" + row;
}

} // namespace quillon::ui
