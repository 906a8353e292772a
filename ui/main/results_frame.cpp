#include "ui/main/results_frame.h"

#include "engine/mask.h"
#include "ui/main/result_rows.h"
#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/quiet_label.h"
#include "ui/widgets/spoken.h"

#include <QGridLayout>

#include <algorithm>

namespace quillon::ui {

namespace {

/// Columns of the panel: marker, value, caption, value, marker.
enum Column { MarkerOne, ValueOne, Caption, ValueTwo, MarkerTwo, ColumnCount };

constexpr int kStatusRow = 2 * engine::kResultLabelCount;
constexpr int kRowStretch = 10;
constexpr int kTotalStretch = 14;
/// The long title shrinks so far against the application font before it is elided.
constexpr double kSmallestTitle = 0.8;

bool IsTotal(const ResultRow& row)
{
    return row.label == engine::ResultLabel::ERP;
}

/// A separator line may stand above each row, hence two grid rows a result.
int GridRow(int place)
{
    return 2 * place + 1;
}

Column ValueColumn(engine::SystemId system)
{
    return system == engine::SystemId::One ? ValueOne : ValueTwo;
}

Column MarkerColumn(engine::SystemId system)
{
    return system == engine::SystemId::One ? MarkerOne : MarkerTwo;
}

int PlaceOf(engine::ResultLabel label)
{
    const auto* const row = std::ranges::find(kResultRows, label, &ResultRow::label);
    return static_cast<int>(row - kResultRows.begin());
}

QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

ResultsFrame::ResultsFrame(const engine::PerSystem<engine::SystemResults>& results, const QLocale& locale,
                           QWidget* parent)
    : TitledFrame(QStringLiteral("System #1--- Antenna System Performance Calculations--- System #2"), parent)
    , m_results(results)
    , m_locale(locale)
    , m_grid(new QGridLayout(this))
{
    setObjectName(QStringLiteral("FrameDisplay"));
    SetSmallest(kSmallestTitle);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    AddPlates();
    for (int place = 0; place < engine::kResultLabelCount; ++place) {
        AddRow(place);
    }
    AddStatusLine();
    for (const engine::SystemId system : engine::kBothSystems) {
        StartValues(system);
    }
}

void ResultsFrame::AddPlates()
{
    for (const engine::SystemId system : engine::kBothSystems) {
        auto* plate = new Card(Card::Kind::Plate, this);
        plate->setObjectName(QStringLiteral("shpSys%1").arg(Number(system)));
        m_grid->addWidget(plate, 0, ValueColumn(system), kStatusRow, 1);
        m_grid->setColumnStretch(ValueColumn(system), 1);
    }
}

void ResultsFrame::AddRow(int place)
{
    const ResultRow& row = kResultRows.at(static_cast<std::size_t>(place));
    const int gridRow = GridRow(place);
    if (row.ruled) {
        const auto lines = static_cast<int>(findChildren<Hairline*>().size());
        auto* line = new Hairline(this);
        line->setObjectName(IndexedName("lblSepLine", lines));
        m_grid->addWidget(line, gridRow - 1, ValueOne, 1, 3);
    }
    m_grid->addWidget(NewCaption(row), gridRow, Caption);
    m_grid->setRowStretch(gridRow, IsTotal(row) ? kTotalStretch : kRowStretch);
    for (const engine::SystemId system : engine::kBothSystems) {
        Row& made = m_rows.at(static_cast<std::size_t>(place));
        made.values[system] = NewValue(row, system);
        made.markers[system] = NewMarker(row, system);
        m_grid->addWidget(made.values[system], gridRow, ValueColumn(system));
        m_grid->addWidget(made.markers[system], gridRow, MarkerColumn(system), Qt::AlignCenter);
    }
}

QWidget* ResultsFrame::NewCaption(const ResultRow& row)
{
    auto* caption = new QLabel(QString::fromLatin1(row.caption), this);
    caption->setObjectName(QString::fromLatin1(row.captionName));
    caption->setTextFormat(Qt::PlainText);
    caption->setAlignment(Qt::AlignCenter);
    caption->setMargin(BaseUnit());
    if (IsTotal(row)) {
        caption->setFont(ScaledFont(1.0, QFont::Bold));
    }
    return caption;
}

ValueLabel* ResultsFrame::NewValue(const ResultRow& row, engine::SystemId system)
{
    auto* value = new ValueLabel(IsTotal(row) ? ValueLabel::Size::Total : ValueLabel::Size::Row,
                                 QString::fromLatin1(row.unit), this);
    value->setObjectName(IndexedName(row.valueName, row.firstIndex + Number(system) - 1));
    return value;
}

ResultMarker* ResultsFrame::NewMarker(const ResultRow& row, engine::SystemId system)
{
    auto* marker = new ResultMarker(system, IsTotal(row) ? MarkerSize::Total : MarkerSize::Row, this);
    marker->setObjectName(IndexedName(SpelledName("shpSystem%1", system), row.marker));
    return marker;
}

void ResultsFrame::AddStatusLine()
{
    for (int index = 0; index < 4; ++index) {
        auto* label = new QuietLabel(QuietLabel::Tone::Quiet, 0.85, this);
        label->setObjectName(IndexedName("lblDebugStatus", index));
        m_status.append(label);
    }
    for (const engine::SystemId system : engine::kBothSystems) {
        auto* row = new QHBoxLayout;
        row->setSpacing(2 * BaseUnit());
        row->setContentsMargins(0, BaseUnit() / 2, 0, 0);
        const int first = Number(system) - 1;
        if (system == engine::SystemId::Two) {
            row->addStretch(1);
        }
        row->addWidget(m_status[first]);
        row->addWidget(m_status[first + 2]);
        if (system == engine::SystemId::One) {
            row->addStretch(1);
        }
        m_grid->addLayout(row, kStatusRow, ValueColumn(system));
    }
}

void ResultsFrame::StartValues(engine::SystemId system)
{
    const std::string separator = m_locale.decimalPoint().toStdString();
    for (const ResultRow& row : kResultRows) {
        const std::string zero = row.mask.empty() ? "0" : engine::FormatWithMask(0, row.mask, separator);
        ShowResult(row.label, system, zero);
        ShowFormula(row.label, system, {});
    }
}

void ResultsFrame::ShowResult(engine::ResultLabel label, engine::SystemId system, std::string_view text)
{
    const int place = PlaceOf(label);
    m_rows.at(static_cast<std::size_t>(place)).values[system]->setText(Text(text));
    NameValue(place, system);
}

void ResultsFrame::ShowFormula(engine::ResultLabel label, engine::SystemId system, std::string_view text)
{
    m_rows.at(static_cast<std::size_t>(PlaceOf(label))).values[system]->SetFormula(Text(text));
}

void ResultsFrame::CompareSystems()
{
    engine::UpdateMarkers(m_results, m_markers);
    for (int place = 0; place < engine::kResultLabelCount; ++place) {
        ShowRow(place);
    }
}

void ResultsFrame::ShowRow(int place)
{
    const auto index = static_cast<std::size_t>(place);
    const engine::PerSystem<bool>& filled = m_markers.at(static_cast<std::size_t>(kResultRows.at(index).marker));
    const bool equal = filled[engine::SystemId::One] && filled[engine::SystemId::Two];
    for (const engine::SystemId system : engine::kBothSystems) {
        ResultMarker* marker = m_rows.at(index).markers[system];
        marker->SetFilled(filled[system]);
        m_rows.at(index).values[system]->SetBetter(filled[system]);
        const QString better = equal ? tr("equal") : tr("System %1 better").arg(Number(system));
        const QString caption = QString::fromLatin1(kResultRows.at(index).caption);
        Say(*marker, filled[system] ? better : QString(), filled[system] ? caption : QString());
    }
}

void ResultsFrame::NameValue(int place, engine::SystemId system)
{
    const auto index = static_cast<std::size_t>(place);
    ValueLabel* value = m_rows.at(index).values[system];
    const ResultRow& row = kResultRows.at(index);
    const QString name = tr("%1, System %2: %3 %4")
                             .arg(QString::fromLatin1(row.caption))
                             .arg(Number(system))
                             .arg(value->text(), QString::fromLatin1(row.spokenUnit));
    Say(*value, name);
}

void ResultsFrame::ShowAntennaStatus(engine::SystemId system, const QString& text)
{
    m_status[Number(system) - 1]->setText(text);
}

void ResultsFrame::ShowCoaxStatus(engine::SystemId system, const QString& text)
{
    m_status[Number(system) + 1]->setText(text);
}

} // namespace quillon::ui
