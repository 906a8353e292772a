#include "ui/report/print_system_report.h"

#include "engine/arithmetic_error.h"
#include "ui/report/coax_loss_text.h"
#include "ui/report/comparison_rules.h"
#include "ui/report/label_text.h"
#include "ui/report/report_layout.h"
#include "ui/widgets/object_names.h"

#include <QLabel>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quillon::ui {

using engine::SystemId;
using namespace report_layout;

namespace {

constexpr double kFontPoints = 8;
constexpr double kHeaderPoints = 14;
/// Notes are written smaller down to this size before the form grows.
constexpr double kSmallestNotesPoints = 6;
constexpr double kNotesStep = 0.5;

QFont ReportFont(double points = kFontPoints, QFont::Weight weight = QFont::Normal)
{
    QFont font(QStringLiteral("MS Sans Serif"));
    font.setPointSizeF(points);
    font.setWeight(weight);
    font.setStyle(QFont::StyleNormal);
    return font;
}

/// The page is black on white whatever the desktop's colours are.
QPalette PaperPalette()
{
    QPalette palette(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    return palette;
}

QRect ToPixels(const QRect& twips)
{
    return {twips.x() / kTwipsPerPixel, twips.y() / kTwipsPerPixel, twips.width() / kTwipsPerPixel,
            twips.height() / kTwipsPerPixel};
}

QString ToText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QLabel* At(const PrintSystemReport::LabelRow& labels, int row)
{
    return labels.at(static_cast<std::size_t>(row));
}

} // namespace

// A window of its own: as a child within another one it would be shown along with it.
PrintSystemReport::PrintSystemReport(const engine::AntennaSystems& systems, engine::Notifier& notifier,
                                     const QLocale& locale, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_systems(systems)
    , m_notifier(notifier)
    , m_separator(locale.decimalPoint().toStdString())
{
    setObjectName(QStringLiteral("PrintSystemReport"));
    setPalette(PaperPalette());
    AddHeader();
    m_rows = AddColumn(QStringLiteral("lblRows"), kCaptionLeft, kSystemLefts[0]);
    m_values[SystemId::One] = AddColumn(QStringLiteral("lblSystemOne"), kSystemLefts[0], kSystemLefts[1]);
    m_values[SystemId::Two] = AddColumn(QStringLiteral("lblSystemTwo"), kSystemLefts[1], kResultLeft);
    m_results = AddColumn(QStringLiteral("lblResults"), kResultLeft, kFormWidth);
    AddCaptions();
    AddNotes();
    AddFooters();
    PlaceNotes();
}

QLabel* PrintSystemReport::AddLabel(const QString& name, const QString& text, const QRect& twips)
{
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setFont(ReportFont());
    label->setPalette(PaperPalette());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setText(text);
    label->setGeometry(ToPixels(twips));
    return label;
}

PrintSystemReport::LabelRow PrintSystemReport::AddColumn(const QString& name, int left, int right)
{
    LabelRow labels{};
    for (int row = 0; row < kReportRowCount; ++row) {
        const QRect place(left, kFirstRowTop + row * kLineHeight, right - left - kColumnGap, kLineHeight);
        labels.at(static_cast<std::size_t>(row)) = AddLabel(IndexedName(name, row), {}, place);
    }
    labels.front()->setFont(ReportFont(kFontPoints, QFont::Bold));
    return labels;
}

void PrintSystemReport::AddHeader()
{
    QLabel* header = AddLabel(QStringLiteral("lblHeader"), QStringLiteral("Antenna System Comparison Report"),
                              {0, kHeaderTop, kFormWidth, kHeaderHeight});
    header->setFont(ReportFont(kHeaderPoints, QFont::Bold));
    header->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void PrintSystemReport::AddCaptions()
{
    m_values[SystemId::One].front()->setText(QStringLiteral("Antenna System One"));
    m_values[SystemId::Two].front()->setText(QStringLiteral("Antenna System Two"));
    m_results.front()->setText(QStringLiteral("Antenna System Comparison"));
    for (const ReportRow& row : ReportRows()) {
        At(m_rows, row.row)->setText(ToText(row.caption));
    }
}

void PrintSystemReport::AddNotes()
{
    m_notes = AddLabel(QStringLiteral("lbNotes"), QStringLiteral("Notes:"),
                       {kCaptionLeft, kNotesTop, kFormWidth - 2 * kCaptionLeft, kFooterTops[0] - kNotesTop});
    m_notes->setWordWrap(true);
}

void PrintSystemReport::AddFooters()
{
    const std::array texts{
        QStringLiteral("Quillon is a demonstration tool only and should not be used to make purchasing decisions."),
        QString()};
    for (std::size_t index = 0; index < m_footers.size(); ++index) {
        m_footers[index] = AddLabel(IndexedName(QStringLiteral("lblFooter"), static_cast<int>(index)), texts[index],
                                    {0, kFooterTops[index], kFormWidth, kLineHeight});
        m_footers[index]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
}

void PrintSystemReport::PlaceNotes()
{
    const int room = kFooterTops[0] - kNotesTop - kLineHeight;
    double points = kFontPoints;
    m_notes->setFont(ReportFont(points));
    double needed = LabelText(*m_notes).Height();
    while (needed > room && points > kSmallestNotesPoints) {
        points -= kNotesStep;
        m_notes->setFont(ReportFont(points));
        needed = LabelText(*m_notes).Height();
    }
    const int lacking = static_cast<int>(std::ceil(std::max(needed - room, 0.0) / kTwipsPerPixel)) * kTwipsPerPixel;
    m_notes->resize(m_notes->width(), (kFooterTops[0] - kNotesTop + lacking) / kTwipsPerPixel);
    for (std::size_t index = 0; index < m_footers.size(); ++index) {
        m_footers[index]->move(m_footers[index]->x(), (kFooterTops[index] + lacking) / kTwipsPerPixel);
    }
    resize(kFormWidth / kTwipsPerPixel, (kFooterTops.back() + kLineHeight + kEdge + lacking) / kTwipsPerPixel);
}

void PrintSystemReport::SetReport()
{
    for (const SystemId system : engine::kBothSystems) {
        for (const ReportRow& row : ReportRows()) {
            At(m_values[system], row.row)->setText(ToText(ReportText(row, m_systems, system, m_separator)));
        }
    }
    ClearComparison();
    DoComparison();
}

void PrintSystemReport::ClearComparison()
{
    for (const ComparisonRow& row : ComparisonRows()) {
        At(m_results, row.row)->clear();
    }
}

void PrintSystemReport::DoComparison()
{
    FillComparisonTexts(m_systems, m_records);
    if (!IsComplete(m_systems.Data[SystemId::One]) || !IsComplete(m_systems.Data[SystemId::Two])) {
        return;
    }
    const ComparisonInput input = InputOf(m_systems, m_records);
    QStringList failed;
    for (const ComparisonRow& row : ComparisonRows()) {
        QLabel* result = At(m_results, row.row);
        try {
            result->setText(ToText(CompareRow(row, input, m_separator)));
        } catch (const engine::ArithmeticError&) {
            result->clear();
            failed << At(m_rows, row.row)->text();
        }
    }
    if (!failed.isEmpty()) {
        const QString text =
            tr("%1: the values are too large to be compared. The report leaves this row of the comparison empty.")
                .arg(failed.join(QStringLiteral(", ")));
        m_notifier.Inform(text.toStdString(), "Antenna System Comparison Report");
    }
}

void PrintSystemReport::AppendNotes(const QString& notes)
{
    m_notes->setText(m_notes->text() + u' ' + notes);
    PlaceNotes();
}

std::string PrintSystemReport::CoaxLossText(int system) const
{
    return ui::CoaxLossText(m_systems, system, m_separator);
}

QSize PrintSystemReport::SizeInTwips() const
{
    return size() * kTwipsPerPixel;
}

} // namespace quillon::ui
