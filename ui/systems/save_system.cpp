#include "ui/systems/save_system.h"

#include "store/code_page.h"
#include "ui/platform/question_box.h"
#include "ui/systems/system_name.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>

namespace quillon::ui {

namespace {

const QString kSave = QStringLiteral("&Save System");
const QString kClose = QStringLiteral("&Close");

/// The first antenna there is gives the name; without one there is nothing to name.
QString ProposedName(const engine::PerSystem<engine::SystemData>& systems)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        const store::SystemNames names = store::NamesOf(systems[system]);
        if (!names.antennaBrand.empty() || !names.antennaModel.empty()) {
            return ShownText(names.antennaBrand) + QStringLiteral(" / ") + ShownText(names.antennaModel);
        }
    }
    return {};
}

} // namespace

SaveSystem::SaveSystem(MainWindowPort& window, store::ReadWrite& readWrite, store::ProfileStore& store,
                       engine::Notifier& notifier, QWidget* parent)
    : PairDialog(QStringLiteral("lblSave"), parent)
    , m_window(window)
    , m_saved(readWrite, store)
    , m_notifier(notifier)
    , m_name(new QLineEdit(this))
    , m_save(new QPushButton(this))
    , m_cancel(new QPushButton(kClose, this))
{
    setObjectName(QStringLiteral("SaveSystem"));
    setWindowTitle(QStringLiteral("Save Current Antenna System"));
    m_name->setObjectName(QStringLiteral("txtSystemName"));
    m_save->setObjectName(QStringLiteral("cmdSave"));
    m_cancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* frame = new TitledFrame(QStringLiteral("Enter a Name for the Antenna Systems"), this);
    frame->setObjectName(QStringLiteral("frame"));
    LayOut(frame, m_name, {m_save, m_cancel});
    RestoreDesign();

    connect(m_save, &QPushButton::clicked, this, &SaveSystem::cmdSave_Click);
    connect(m_cancel, &QPushButton::clicked, this, &SaveSystem::reject);
}

void SaveSystem::Open()
{
    hide(); // It may stand open beside the main window.
    Prepare();
    exec();
}

void SaveSystem::OpenBeside()
{
    hide();
    Prepare();
    show();
    raise();
    activateWindow();
}

void SaveSystem::RestoreDesign()
{
    m_save->setText(kSave);
    m_save->setEnabled(true);
    FitButtons();
    m_name->clear();
    m_name->setFocus();
    for (const engine::SystemId system : engine::kBothSystems) {
        Frame(system).Clear();
    }
}

void SaveSystem::KeepFromSaving()
{
    m_cancel->setFocus();
    m_save->setEnabled(false);
}

void SaveSystem::Prepare()
{
    RestoreDesign();
    if (!m_saved.DataFileCheck()) {
        KeepFromSaving();
        return;
    }
    ShowSystems();
    m_name->setText(ProposedName(m_window.Systems().Data));
    m_name->selectAll();
    if (m_name->text().isEmpty()) {
        m_notifier.Inform("There is no system configured to save!", "Saved Systems");
        KeepFromSaving();
    }
}

void SaveSystem::ShowSystems()
{
    for (const engine::SystemId system : engine::kBothSystems) {
        Frame(system).Show(store::NamesOf(m_window.Systems().Data[system]));
    }
}

bool SaveSystem::event(QEvent* event)
{
    // Beside the main window the systems may have changed in the meantime.
    if (event->type() == QEvent::WindowActivate && !isModal() && m_save->isEnabled()) {
        ShowSystems();
    }
    return PairDialog::event(event);
}

void SaveSystem::cmdSave_Click()
{
    const QString name = m_name->text().trimmed();
    if (name.isEmpty()) {
        m_notifier.Inform("System Name is Empty! Please Create a System and Try Again.", "System name");
        reject();
        return;
    }
    if (m_save->text() != kSave) {
        accept();
        return;
    }
    if (const QString refusal = SystemNameRefusal(name); !refusal.isEmpty()) {
        m_notifier.Inform(refusal.toStdString(), "System name");
        m_name->setFocus();
        m_name->selectAll();
        return;
    }
    m_save->setText(kClose);
    m_save->setFocus();
    Save(store::FromUtf8(name.toStdString()).value_or(std::string()));
}

void SaveSystem::Save(const std::string& name)
{
    const store::SavedSystems::Slot slot = m_saved.SystemExists(name);
    if (slot.exists && !AskYesNo(this, QStringLiteral("The Selected System Already Exists. Do You Want to Update it?"),
                                 QStringLiteral("Save Antenna System"))) {
        return;
    }
    if (m_saved.Write(slot, name, m_window.Systems().Data)) {
        m_window.SetSavedFlags();
    }
}

} // namespace quillon::ui
