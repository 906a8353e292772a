#include "tests/looks/program_on_show.h"

#include "tests/support/find_widget.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QApplication>
#include <QLineEdit>

#include <filesystem>
#include <stdexcept>

namespace quillon::test {

namespace {

constexpr int kRounds = 6; ///< of events until nothing moves any more

} // namespace

ProgramOnShow::ProgramOnShow()
{
    std::filesystem::copy(QUILLON_DATA_FOLDER, m_program.files.Path(), std::filesystem::copy_options::recursive);
    Window().Load();
    Window().show();
    Window().activateWindow();
}

void ProgramOnShow::Choose(int system, const QString& cable, const QString& antenna, const QString& band)
{
    const QString lists = system == 1 ? QStringLiteral("cboSystemOne") : QStringLiteral("cboSystemTwo");
    const auto choose = [&](const char* kind, int index, const QString& entry) {
        Choose(Window(), QStringLiteral("%1%2(%3)").arg(lists, QString::fromLatin1(kind)).arg(index), entry);
    };
    choose("Coax", 0, cable.section(u'/', 0, 0));
    choose("Coax", 1, cable.section(u'/', 1));
    choose("Antenna", 0, antenna.section(u'/', 0, 0));
    choose("Antenna", 1, antenna.section(u'/', 1));
    choose("Antenna", 2, band);
}

void ProgramOnShow::Choose(const QWidget& window, const QString& list, const QString& entry)
{
    auto& box = Find<ui::CatalogueListBox>(window, list);
    const int index = box.findText(entry);
    if (index < 0) {
        throw std::runtime_error("no entry " + entry.toStdString() + " in " + list.toStdString());
    }
    box.Choose(index);
}

void ProgramOnShow::Type(const QWidget& window, const QString& box, const QString& text)
{
    auto& line = Find<QLineEdit>(window, box);
    line.selectAll();
    line.insert(text);
}

void Settle()
{
    for (int round = 0; round < kRounds; ++round) {
        QApplication::processEvents();
    }
}

} // namespace quillon::test
