#include "ui/systems/load_system.h"

#include "ui/systems/name_list_box.h"

#include <QPushButton>

namespace quillon::ui {

namespace {

const QString kTitle = QStringLiteral("Load an Antenna System");
const QString kLoad = QStringLiteral("&Load System");
const QString kClose = QStringLiteral("C&lose");

/// Wording for what keeps a pair from being loaded.
QString DamageText(const QString& name, const store::DamagedValue& damage)
{
    using Fault = store::DamagedValue::Fault;
    const QString key = QString::fromStdString(damage.key);
    const QString value = ShownText(damage.value);
    switch (damage.fault) {
    case Fault::NoNumber:
        return LoadSystem::tr("“%1” cannot be loaded: its %2 is “%3”, which is not a number.").arg(name, key, value);
    case Fault::TooLarge:
        return LoadSystem::tr("“%1” cannot be loaded: its %2 is “%3”, which is too large.").arg(name, key, value);
    case Fault::NotComputable:
        return LoadSystem::tr("“%1” cannot be loaded: the figures of its %2 cannot be computed with.").arg(name, key);
    case Fault::Missing:
        break;
    }
    return LoadSystem::tr("“%1” cannot be loaded: its %2 is missing.").arg(name, key);
}

} // namespace

LoadSystem::LoadSystem(MainWindowPort& window, store::ReadWrite& readWrite, store::ProfileStore& store,
                       engine::Notifier& notifier, QWidget* parent)
    : PairDialog(QStringLiteral("lblSelect"), parent)
    , m_window(window)
    , m_saved(readWrite, store)
    , m_notifier(notifier)
    , m_list(new NameListBox(this))
    , m_load(new QPushButton(this))
    , m_cancel(new QPushButton(QStringLiteral("&Cancel"), this))
{
    setObjectName(QStringLiteral("LoadSystem"));
    setWindowTitle(kTitle);
    m_list->setObjectName(QStringLiteral("cboSavedSystems"));
    m_load->setObjectName(QStringLiteral("cmdLoad"));
    m_cancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* frame = new TitledFrame(QStringLiteral("Select an Antenna System"), this);
    frame->setObjectName(QStringLiteral("FrameAntSystem"));
    LayOut(frame, m_list, {m_load, m_cancel});
    RestoreDesign();

    // Emitted for choices of the user only, also of the entry that is selected already: filling the list is no click.
    connect(m_list, &QComboBox::activated, this, &LoadSystem::cboSavedSystems_Click);
    connect(m_load, &QPushButton::clicked, this, &LoadSystem::cmdLoad_Click);
    connect(m_cancel, &QPushButton::clicked, this, &LoadSystem::reject);
}

void LoadSystem::Open()
{
    Prepare();
    exec();
}

void LoadSystem::RestoreDesign()
{
    m_load->setText(kLoad);
    m_cancel->setEnabled(true);
    FitButtons();
    m_list->clear();
    m_names.clear();
    m_list->setFocus();
    for (const engine::SystemId system : engine::kBothSystems) {
        Frame(system).Clear();
    }
}

void LoadSystem::Prepare()
{
    RestoreDesign();
    if (m_saved.DataFileCheck()) {
        m_names = m_saved.Names();
    }
    QStringList texts;
    for (const std::string& name : m_names) {
        texts.append(ShownText(name));
    }
    m_list->addItems(texts);
    if (m_names.empty()) {
        m_load->setText(kClose);
        m_load->setFocus();
        m_cancel->setEnabled(false);
        return;
    }
    m_list->setCurrentIndex(0);
    ShowNames(m_saved.ReadNames(m_names.front()));
}

void LoadSystem::ShowNames(const engine::PerSystem<store::SystemNames>& names)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        Frame(system).Show(names[system]);
    }
}

bool LoadSystem::ReadSelected()
{
    if (!m_saved.DataFileCheck()) {
        return false;
    }
    const std::string& name = m_names.at(static_cast<std::size_t>(m_list->currentIndex()));
    const std::variant<store::SystemPair, store::DamagedValue> read = m_saved.ReadPair(name);
    ShowNames(m_saved.ReadNames(name));
    if (const auto* damage = std::get_if<store::DamagedValue>(&read)) {
        m_notifier.Inform(DamageText(ShownText(name), *damage).toStdString(), kTitle.toStdString());
        return false;
    }
    m_window.Systems().Data = std::get<store::SystemPair>(read);
    m_window.Systems().Results = {};
    return true;
}

void LoadSystem::cboSavedSystems_Click()
{
    ReadSelected();
}

void LoadSystem::cmdLoad_Click()
{
    if (m_load->text() == kClose) {
        reject();
        return;
    }
    if (!ReadSelected()) {
        return;
    }
    for (const engine::SystemId system : engine::kBothSystems) {
        m_window.ShowRecord(Number(system));
    }
    for (const engine::SystemId system : engine::kBothSystems) {
        m_window.RefreshData(Number(system));
    }
    accept();
}

} // namespace quillon::ui
