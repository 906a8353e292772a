#include "ui/editor/edit_antennas.h"

#include "store/code_page.h"
#include "store/entry_name.h"
#include "store/maker_name.h"
#include "ui/editor/fields_frame.h"
#include "ui/editor/name_box.h"
#include "ui/editor/selection_frame.h"
#include "ui/editor/status_line.h"
#include "ui/platform/question_box.h"
#include "ui/widgets/button_keys.h"
#include "ui/widgets/catalogue_list_box.h"
#include "ui/widgets/catalogue_text.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/name_refusal.h"
#include "ui/widgets/scrolled_window.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace quillon::ui {

namespace {

const QString kTitle = QStringLiteral("Manage Antenna Database");

QString NotWritten(const QString& maker)
{
    return EditAntennas::tr("The file of “%1” could not be written.").arg(maker);
}

/// Chooses the entry that equals a text, letter case aside when need be. @return whether there is one
bool ChooseEqual(CatalogueListBox& list, const QString& text)
{
    const int exact = list.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    const int found = exact >= 0 ? exact : list.findText(text, Qt::MatchFixedString);
    list.Choose(found);
    return found >= 0;
}

/// A list that is left shows what is chosen in it, whatever has been typed there.
void ShowChoiceWhenLeft(CatalogueListBox& list)
{
    QObject::connect(&list, &CatalogueListBox::Left, &list, [&list] {
        if (list.currentText() != list.itemText(list.currentIndex())) {
            list.setEditText(list.itemText(list.currentIndex()));
        }
    });
}

} // namespace

EditAntennas::EditAntennas(MainWindowPort& window, const store::Catalogue& catalogue, store::ProgramFolder folder,
                           store::ProfileStore& store, engine::Notifier& notifier, QWidget* parent, EditorClock clock)
    : QDialog(parent)
    , m_window(window)
    , m_catalogue(catalogue)
    , m_files(std::move(folder), store)
    , m_notifier(notifier)
    , m_clock(std::move(clock))
    , m_selection(new SelectionFrame(this))
    , m_fields(new FieldsFrame(this))
    , m_status(new StatusLine(m_clock.ticks, this))
    , m_close(new QPushButton(QStringLiteral("&Close"), this))
{
    setObjectName(QStringLiteral("EditAntennas"));
    setWindowTitle(kTitle);
    m_close->setObjectName(QStringLiteral("cmdClose"));
    LayOut();
    Wire();
    m_selection->Clear();
}

void EditAntennas::LayOut()
{
    const int unit = BaseUnit();
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(2 * unit);
    bottom->addWidget(m_status, 1);
    bottom->addLayout(ButtonRow({}, {m_close}));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(3 * unit, 3 * unit, 3 * unit, 3 * unit);
    grid->setSpacing(2 * unit);
    grid->addLayout(InCard(m_selection), 0, 0);
    grid->addLayout(InCard(m_fields), 0, 1);
    grid->addLayout(bottom, 1, 0, 1, 2);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    QWidget* before = nullptr;
    for (QWidget* control : m_selection->TabOrder() + m_fields->TabOrder() + QList<QWidget*>{m_close}) {
        if (before != nullptr) {
            setTabOrder(before, control);
        }
        before = control;
    }
    ScrollWhatHasNoRoom(*this);
}

void EditAntennas::Wire()
{
    const SelectionFrame& step = *m_selection;
    connect(&step.Makers(), &CatalogueListBox::Chosen, this, &EditAntennas::cboAntennaMakers_Click);
    connect(&step.Models(), &CatalogueListBox::Chosen, this, &EditAntennas::cboAntennaModels_Click);
    connect(&step.Models(), &CatalogueListBox::EnterTaken, this, &EditAntennas::cmdEdit_Click);
    connect(&step.Brand(), &NameBox::EnterPressed, this, &EditAntennas::txtAntennaBrand_Enter);
    connect(&step.Model(), &NameBox::EnterPressed, this, &EditAntennas::txtAntennaModel_Enter);
    connect(&step.AddNewBrand(), &QPushButton::clicked, this, &EditAntennas::cmdAddNewBrand_Click);
    connect(&step.AddNewModel(), &QPushButton::clicked, this, &EditAntennas::cmdAddNewModel_Click);
    connect(&step.Edit(), &QPushButton::clicked, this, &EditAntennas::cmdEdit_Click);
    connect(&step.Save(), &QPushButton::clicked, this, &EditAntennas::cmdSave_Click);
    connect(m_fields, &FieldsFrame::BandRemoved, &step.Save(), qOverload<>(&QWidget::setFocus));
    connect(m_close, &QPushButton::clicked, this, &EditAntennas::reject);
    ShowChoiceWhenLeft(step.Makers());
    ShowChoiceWhenLeft(step.Models());
}

void EditAntennas::Open()
{
    Prepare();
    exec();
}

void EditAntennas::Prepare()
{
    m_selection->Clear();
    m_fields->Clear();
    SetEditing(false);
    m_status->Clear();
    LoadMakers();
    m_selection->Makers().setFocus();
}

std::string EditAntennas::Maker() const
{
    return m_selection->Makers().ChosenName().toStdString();
}

std::string EditAntennas::Model() const
{
    return m_selection->Models().ChosenName().toStdString();
}

void EditAntennas::Tell(const QString& text)
{
    m_notifier.Inform(text.toStdString(), kTitle.toStdString());
}

void EditAntennas::SetEditing(bool editing)
{
    m_fields->SetEditable(editing);
    m_selection->Save().setEnabled(editing);
}

void EditAntennas::LoadMakers()
{
    m_selection->Makers().Fill(MakerEntries(m_catalogue.LoadAntennaMakers()));
    LoadModels();
}

void EditAntennas::LoadModels()
{
    const bool hasMaker = m_selection->Makers().HasChoice();
    m_selection->Models().Fill(hasMaker ? SectionEntries(m_catalogue.LoadAntennas(Maker())) : QList<CatalogueEntry>());
    m_selection->AddNewModel().setEnabled(hasMaker);
    if (!hasMaker) {
        m_selection->Model().Empty();
    }
    m_selection->Edit().setEnabled(false);
    m_fields->Clear();
    SetEditing(false);
    ShowFileInfo();
}

void EditAntennas::ShowFileInfo()
{
    m_selection->ShowFileInfo(m_selection->Makers().HasChoice() ? m_files.ReadIndex(Maker()) : store::IndexEntry());
}

void EditAntennas::ShowModel()
{
    const std::optional<store::ModelSection> model = m_catalogue.LoadModel(Maker(), Model());
    m_selection->Edit().setEnabled(model.has_value());
    SetEditing(false);
    if (model) {
        m_fields->ShowModel(model->bands, model->gainType);
        return;
    }
    // Fields without bands must not be saved: that would take away those that the model has.
    m_fields->Clear();
    Tell(tr("The file of “%1” could not be read.").arg(MakerText(Maker())));
}

bool EditAntennas::UpdateIndex()
{
    const bool isWritten = m_files.UpdateIndex(Maker(), m_clock.today());
    ShowFileInfo();
    if (!isWritten) {
        Tell(tr("The file of “%1” is written, but the index of the antenna files could not be.")
                 .arg(m_selection->Makers().currentText()));
    }
    return isWritten;
}

void EditAntennas::cboAntennaMakers_Click()
{
    LoadModels();
}

void EditAntennas::cboAntennaModels_Click()
{
    ShowModel();
}

void EditAntennas::cmdAddNewBrand_Click()
{
    m_status->Show(QStringLiteral("Type in the antenna brand then press enter."));
    m_selection->Brand().Ready();
}

void EditAntennas::cmdAddNewModel_Click()
{
    m_status->Show(QStringLiteral("Type in the antenna model then press enter."));
    m_selection->Model().Ready();
}

void EditAntennas::txtAntennaBrand_Enter()
{
    const QString typed = m_selection->Brand().text();
    const std::string brand = typed.toStdString();
    const TypedName name{tr("The antenna brand"), typed, store::kLongestMakerName};
    if (const QString refusal = NameRefusal(name, store::MakerNameFault(brand)); !refusal.isEmpty()) {
        Tell(refusal);
        return;
    }
    if (m_files.BrandFileExists(brand) &&
        !AskOkCancel(this, QStringLiteral("File ") + typed + QStringLiteral(" already exists. Overwrite it?"),
                     QStringLiteral("File Already Exists!"))) {
        return;
    }
    if (!m_files.CreateBrandFile(brand)) {
        Tell(NotWritten(typed));
        return;
    }
    m_window.LoadAntennaMakers();
    LoadMakers();
    if (!ChooseEqual(m_selection->Makers(), typed)) {
        Tell(tr("“%1” is the name of something else than an antenna file.").arg(typed));
        return;
    }
    m_selection->Brand().Empty();
    cmdAddNewModel_Click();
}

void EditAntennas::txtAntennaModel_Enter()
{
    const QString typed = m_selection->Model().text();
    const TypedName name{tr("The antenna model"), typed, store::kLongestEntry};
    if (const QString refusal = NameRefusal(name, store::EntryNameFault(typed.toStdString())); !refusal.isEmpty()) {
        Tell(refusal);
        return;
    }
    const std::string model = store::FromUtf8(typed.toStdString()).value_or(std::string());
    const bool isFound = m_files.FirstModelWith(Maker(), model).has_value();
    if (isFound &&
        !AskOkCancel(this, QStringLiteral("Antenna Model ") + typed + QStringLiteral(" Already Exists! Replace it?"),
                     QStringLiteral("Model Exists!"))) {
        return;
    }
    if (!m_files.AddModel(Maker(), model, isFound ? store::IfModelFound::Replace : store::IfModelFound::Refuse)) {
        Tell(NotWritten(m_selection->Makers().currentText()));
        return;
    }
    m_selection->Model().Empty();
    UpdateIndex();
    LoadModels();
    m_window.ReloadAntennas(Maker());
    if (!ChooseEqual(m_selection->Models(), typed)) {
        Tell(tr("“%1” is written to its file, but the list of models is full and cannot show it.").arg(typed));
    }
    m_selection->Models().setFocus();
}

void EditAntennas::cmdEdit_Click()
{
    // Enter in the list of models comes here as well, whether there is something to edit or not.
    if (m_selection->Edit().isEnabled()) {
        SetEditing(true);
    }
}

void EditAntennas::cmdSave_Click()
{
    const auto figures = m_fields->Figures();
    if (const auto* fault = std::get_if<FieldsFrame::Fault>(&figures)) {
        Tell(fault->text);
        fault->box->setFocus();
        return;
    }
    const bool isWritten = m_files.SaveChanges(Maker(), Model(), std::get<store::ModelFigures>(figures));
    m_window.ReloadAntennas(Maker());
    if (!isWritten) {
        Tell(NotWritten(m_selection->Makers().currentText()));
        return;
    }
    if (!UpdateIndex()) {
        return;
    }
    m_selection->Models().setFocus();
    ShowModel();
    m_status->Show(tr("Changes saved."));
}

void EditAntennas::keyPressEvent(QKeyEvent* event)
{
    if (!PressFocusedButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon::ui
