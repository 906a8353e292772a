#include "ui/editor/fields_frame.h"

#include "engine/text_compare.h"
#include "ui/editor/band_box.h"
#include "ui/editor/gain_box.h"
#include "ui/platform/question_box.h"
#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/quiet_label.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>

namespace quillon::ui {

namespace {

/// As given, the band captioned 75 is the catalogue's 80: the main window reads the same key for its 75/80 m band.
constexpr std::array<const char*, store::kBandSuffixes.size()> kCaptions{
    "160 Meters", "75 Meters", "60 Meters", "40 Meters", "30 Meters", "20 Meters",   "17 Meters",
    "15 Meters",  "12 Meters", "10 Meters", "6  Meters", "2 Meters",  "1.25 Meters", ".70 Meters"};

enum GainType { DBd = 1, DBi = 2 };

/// Two columns of seven bands below their headings, then a line and the units.
enum Row { HeadingRow, FirstBandRow, LineRow = FirstBandRow + 7, UnitRow };

enum Column { LeftBand, LeftGain, Gap, RightBand, RightGain };

constexpr int kBandsPerColumn = 7;

QuietLabel* NewLabel(int index, const char* text, QWidget* parent)
{
    auto* label = new QuietLabel(QuietLabel::Tone::Quiet, 1.0, parent);
    label->setObjectName(IndexedName("lblBands", index));
    label->setText(QString::fromUtf8(text));
    return label;
}

QRadioButton* NewUnit(GainType unit, const char* caption, const char* toolTip, QWidget* parent)
{
    auto* option = new QRadioButton(QString::fromUtf8(caption), parent);
    option->setObjectName(IndexedName("optGainType", unit));
    option->setToolTip(QString::fromUtf8(toolTip));
    return option;
}

} // namespace

FieldsFrame::FieldsFrame(QWidget* parent)
    : TitledFrame(QStringLiteral("Edit Data Fields"), parent)
    , m_gainType(new QButtonGroup(this))
{
    for (std::size_t place = 0; place < m_bands.size(); ++place) {
        m_bands.at(place) = {new BandBox(QString::fromUtf8(kCaptions.at(place)), this), new GainBox(this)};
        connect(m_bands.at(place).covered, &BandBox::ChangedByMouse, this, [this, place] { chkBands_MouseUp(place); });
    }
    m_gainType->addButton(NewUnit(DBd, "Gain in dBd", "Select if all gain figures are in dBd", this), DBd);
    m_gainType->addButton(NewUnit(DBi, "Gain in dBi", "Select if all gain figures are in dBi", this), DBi);
    Name();
    LayOut();
    SetEditable(false);
}

void FieldsFrame::Name()
{
    setObjectName(QStringLiteral("FrameFields"));
    for (int index = 1; const Band& band : m_bands) {
        band.covered->setObjectName(IndexedName("chkBands", index));
        band.gain->setObjectName(IndexedName("txtGainFigure", index));
        band.gain->setAccessibleName(tr("Gain Figure, %1").arg(band.covered->text()));
        ++index;
    }
}

void FieldsFrame::LayOut()
{
    const int unit = BaseUnit();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * unit);
    grid->setVerticalSpacing(unit);
    auto* heading = NewLabel(0, "Select Bands of Operation", this);
    heading->setWordWrap(true);
    grid->addWidget(heading, HeadingRow, LeftBand, Qt::AlignBottom);
    grid->addWidget(NewLabel(1, "Gain Figure", this), HeadingRow, LeftGain, Qt::AlignBottom | Qt::AlignRight);
    grid->addWidget(NewLabel(2, "Gain Figure", this), HeadingRow, RightGain, Qt::AlignBottom | Qt::AlignRight);
    for (int place = 0; const Band& band : m_bands) {
        const int row = FirstBandRow + place % kBandsPerColumn;
        const bool isLeft = place < kBandsPerColumn;
        grid->addWidget(band.covered, row, isLeft ? LeftBand : RightBand);
        grid->addWidget(band.gain, row, isLeft ? LeftGain : RightGain);
        ++place;
    }
    grid->addWidget(new Hairline(this), LineRow, LeftBand, 1, RightGain + 1, Qt::AlignVCenter);
    grid->addWidget(m_gainType->button(DBd), UnitRow, LeftBand, 1, 2);
    grid->addWidget(m_gainType->button(DBi), UnitRow, RightBand, 1, 2);
    grid->setColumnMinimumWidth(Gap, 2 * unit);
    grid->setColumnStretch(LeftGain, 1);
    grid->setColumnStretch(RightGain, 1);
    grid->setRowMinimumHeight(LineRow, 3 * unit);
    grid->setRowStretch(LineRow, 1);
}

void FieldsFrame::Clear()
{
    for (const Band& band : m_bands) {
        band.gain->clear();
        band.covered->setChecked(false);
    }
    // An exclusive group keeps one of its options chosen.
    m_gainType->setExclusive(false);
    for (QAbstractButton* option : m_gainType->buttons()) {
        option->setChecked(false);
    }
    m_gainType->setExclusive(true);
}

void FieldsFrame::ShowModel(const store::BandTable& bands, std::string_view gainType)
{
    Clear();
    for (std::size_t place = 0; place < m_bands.size(); ++place) {
        const bool isCovered = engine::EqualIgnoringCase(bands.at(place).covered, "True");
        m_bands.at(place).covered->setChecked(isCovered);
        if (isCovered) {
            m_bands.at(place).gain->ShowTenths(bands.at(place).gain);
        }
    }
    m_gainType->button(engine::EqualIgnoringCase(gainType, "dBd") ? DBd : DBi)->setChecked(true);
}

void FieldsFrame::SetEditable(bool editable)
{
    for (const Band& band : m_bands) {
        band.covered->setEnabled(editable);
        band.gain->setReadOnly(!editable);
    }
    for (QAbstractButton* option : m_gainType->buttons()) {
        option->setEnabled(editable);
    }
}

std::variant<store::ModelFigures, FieldsFrame::Fault> FieldsFrame::Figures() const
{
    store::ModelFigures figures{m_gainType->checkedId() == DBd ? "dBd" : "dBi", {}};
    for (std::size_t place = 0; place < m_bands.size(); ++place) {
        const auto& [covered, gain] = m_bands.at(place);
        const Typed<std::int16_t> tenths = gain->Tenths();
        if (!covered->isChecked()) {
            continue;
        }
        if (!tenths.value) {
            return Fault{tr("%1: %2.").arg(covered->text(), tenths.problem), gain};
        }
        figures.GainTenths.at(place) = tenths.value;
    }
    return figures;
}

void FieldsFrame::chkBands_MouseUp(std::size_t place)
{
    const auto& [covered, gain] = m_bands.at(place);
    const bool isAdded = covered->isChecked();
    const bool isMeant = isAdded ? AskOkCancel(window(), QStringLiteral("Add Gain Figure For This Band?"),
                                               QStringLiteral("Add Band Coverage?"))
                                 : AskOkCancel(window(), QStringLiteral("Remove Gain Figure For This Band?"),
                                               QStringLiteral("Remove Band Coverage?"));
    if (!isMeant) {
        covered->setChecked(!isAdded);
    } else if (isAdded) {
        gain->setFocus();
    } else {
        emit BandRemoved();
    }
}

QList<QWidget*> FieldsFrame::TabOrder() const
{
    QList<QWidget*> order;
    for (const Band& band : m_bands) {
        order << band.covered << band.gain;
    }
    return order << m_gainType->button(DBd) << m_gainType->button(DBi);
}

} // namespace quillon::ui
