#include "ui/editor/selection_frame.h"

#include "ui/editor/name_box.h"
#include "ui/widgets/card.h"
#include "ui/widgets/catalogue_list_box.h"
#include "ui/widgets/catalogue_text.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/quiet_label.h"
#include "ui/widgets/spoken.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon::ui {

namespace {

constexpr std::array kStepCaptions{"1: Select an Antenna Manufacturer", "2: Select an Antenna Model",
                                   "3: Click Edit, Make Changes, Then Click Save"};
constexpr std::array kFileInfoCaptions{"Number of  Entries", "Date File Created", "Date Last Modified"};
constexpr int kFirstValue = 3;

QuietLabel* NewLabel(QuietLabel::Tone tone, const char* array, int index, QWidget* parent)
{
    auto* label = new QuietLabel(tone, 1.0, parent);
    label->setObjectName(IndexedName(QString::fromUtf8(array), index));
    return label;
}

QPushButton* NewButton(const char* name, const char* caption, const char* toolTip, QWidget* parent)
{
    auto* button = new QPushButton(QString::fromUtf8(caption), parent);
    button->setObjectName(QString::fromUtf8(name));
    button->setToolTip(QString::fromUtf8(toolTip));
    button->setAutoDefault(false);
    FitButtons({button});
    return button;
}

} // namespace

SelectionFrame::SelectionFrame(QWidget* parent)
    : TitledFrame(QStringLiteral("Make Antenna Brand && Model Selections"), parent)
    , m_makers(new CatalogueListBox(this))
    , m_models(new CatalogueListBox(this))
    , m_brand(new NameBox(this))
    , m_model(new NameBox(this))
    , m_addNewBrand(NewButton("cmdAddNewBrand", "Add New &Brand", "Click to add new antenna manufacturer", this))
    , m_addNewModel(NewButton("cmdAddNewModel", "Add New &Model", "Click to add new antenna model", this))
    , m_edit(NewButton("cmdEdit", "&Edit Selection", "Click to edit selected antenna system", this))
    , m_save(NewButton("cmdSave", "&Save Changes", "Click to save antenna system changes", this))
{
    Name();
    LayOut();
    m_makers->SetNext(m_models);
}

void SelectionFrame::Name()
{
    setObjectName(QStringLiteral("FrameAntennas"));
    m_makers->setObjectName(QStringLiteral("cboAntennaMakers"));
    m_models->setObjectName(QStringLiteral("cboAntennaModels"));
    m_brand->setObjectName(QStringLiteral("txtAntennaBrand"));
    m_model->setObjectName(QStringLiteral("txtAntennaModel"));
    SetSpokenName(*m_makers, tr("Antenna manufacturer"));
    SetSpokenName(*m_models, tr("Antenna model"));
    m_brand->setAccessibleName(tr("New antenna manufacturer"));
    m_model->setAccessibleName(tr("New antenna model"));
}

QVBoxLayout* SelectionFrame::AddStep(int number, QWidget* control)
{
    auto* label = NewLabel(QuietLabel::Tone::Normal, "lblAntennas", number, this);
    label->setText(QString::fromUtf8(kStepCaptions.at(static_cast<std::size_t>(number))));
    label->setBuddy(control);
    auto* step = new QVBoxLayout;
    step->setSpacing(BaseUnit());
    step->addWidget(label);
    return step;
}

void SelectionFrame::LayOut()
{
    const int unit = BaseUnit();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2 * unit);
    const auto addRow = [unit](QVBoxLayout& step, const QList<QWidget*>& controls, int firstStretch) {
        auto* row = new QHBoxLayout;
        row->setSpacing(2 * unit);
        row->addWidget(controls[0], firstStretch);
        row->addWidget(controls[1], 1);
        step.addLayout(row);
    };
    QVBoxLayout* maker = AddStep(0, m_makers);
    maker->addWidget(m_makers);
    addRow(*maker, {m_brand, m_addNewBrand}, 2);
    QVBoxLayout* model = AddStep(1, m_models);
    model->addWidget(m_models);
    addRow(*model, {m_model, m_addNewModel}, 2);
    QVBoxLayout* change = AddStep(2, m_edit);
    addRow(*change, {m_edit, m_save}, 1);
    for (QVBoxLayout* step : {maker, model, change}) {
        column->addLayout(step);
        column->addWidget(new Hairline(this), 1, Qt::AlignVCenter);
    }
    column->addLayout(FileInfo());
}

QGridLayout* SelectionFrame::FileInfo()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * BaseUnit());
    grid->setVerticalSpacing(BaseUnit() / 2);
    for (int row = 0; row < static_cast<int>(m_fileInfo.size()); ++row) {
        auto* caption = NewLabel(QuietLabel::Tone::Quiet, "lblFileInfo", row, this);
        caption->setText(QString::fromUtf8(kFileInfoCaptions.at(static_cast<std::size_t>(row))));
        auto* value = NewLabel(QuietLabel::Tone::Normal, "lblFileInfo", kFirstValue + row, this);
        value->SetElides(true);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_fileInfo.at(static_cast<std::size_t>(row)) = value;
        grid->addWidget(caption, row, 0);
        grid->addWidget(value, row, 1);
    }
    grid->setColumnStretch(1, 1);
    return grid;
}

void SelectionFrame::ShowFileInfo(const store::IndexEntry& entry)
{
    const std::array values{&entry.NumEntries, &entry.DateCreated, &entry.LastModified};
    for (std::size_t row = 0; row < values.size(); ++row) {
        const QString value = SectionText(*values.at(row));
        m_fileInfo.at(row)->setText(value);
        m_fileInfo.at(row)->setAccessibleName(
            tr("%1: %2").arg(QString::fromUtf8(kFileInfoCaptions.at(row)).simplified(), value));
    }
}

void SelectionFrame::Clear()
{
    m_makers->Empty();
    m_models->Empty();
    m_brand->Empty();
    m_model->Empty();
    ShowFileInfo({});
    m_addNewModel->setEnabled(false);
    m_edit->setEnabled(false);
    m_save->setEnabled(false);
}

QSize SelectionFrame::minimumSizeHint() const
{
    return TitledFrame::minimumSizeHint().expandedTo({TitleWidth(0), 0});
}

QList<QWidget*> SelectionFrame::TabOrder() const
{
    return {m_makers, m_brand, m_addNewBrand, m_models, m_model, m_addNewModel, m_edit, m_save};
}

} // namespace quillon::ui
