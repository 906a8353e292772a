#include "ui/main/quillon_window.h"

#include "ui/main/menu_bar.h"
#include "ui/main/window_layout.h"
#include "ui/widgets/catalogue_text.h"

#include <QCloseEvent>
#include <QMenuBar>

namespace quillon::ui {

Quillon::Quillon(const QuillonParts& parts, QWidget* parent)
    : QMainWindow(parent)
    , m_systems(parts.systems)
    , m_content(new QWidget)
    , m_results(new ResultsFrame(parts.systems.Results, locale(), m_content))
    , m_calculations(parts.systems, *m_results, parts.hooks, locale().decimalPoint().toStdString())
    , m_workspace(parts.systems, m_calculations, parts.catalogue, parts.notifier, locale())
    , m_columns{new SystemColumn(engine::SystemId::One, m_workspace, *m_results, m_content),
                new SystemColumn(engine::SystemId::Two, m_workspace, *m_results, m_content)}
    , m_coaxLoss(new CoaxLossFrame(m_workspace, m_content))
    , m_antennaGain(new AntennaGainFrame(m_workspace, m_content))
    , m_commands(new CommandFrame(m_content))
{
    setObjectName(QStringLiteral("Quillon"));
    setWindowTitle(QStringLiteral("ERP / Attenuation Calculator"));
    const WindowParts window{m_columns, m_results, m_coaxLoss, m_antennaGain, m_commands};
    LayOutWindow(*this, *m_content, window);
    SetWindowTabOrder(window);
    m_columns[engine::SystemId::One]->Power()->TabOrder().first()->setFocus();
    Wire();
}

void Quillon::Wire()
{
    const SystemColumn& one = *m_columns[engine::SystemId::One];
    connect(m_coaxLoss, &CoaxLossFrame::UseLists, one.Coax(), &CoaxFrame::SetListsEnabled);
    connect(m_antennaGain, &AntennaGainFrame::UseLists, one.Antenna(), &AntennaFrame::SetListsEnabled);
    connect(m_commands, &CommandFrame::Given, this, &Quillon::CommandGiven);
    FillMenuBar(*menuBar(), [this](Command command) { emit CommandGiven(command); });
    for (TitledFrame* frame : InputFrames()) {
        frame->installEventFilter(this);
    }
}

void Quillon::Load()
{
    m_formLoaded = false;
    m_calculations.BuildVSWRTable();
    m_coaxLoss->hide();
    m_antennaGain->hide();
    StartFlags();
    StartSystems();
    for (const engine::SystemId system : engine::kBothSystems) {
        m_systems.State[system].SetFlag(engine::kComputeFlag, engine::kTrue);
    }
    LoadCableMakers();
    LoadAntennaMakers();
    m_calculations.BuildDBTable();
    // It has the keyboard, but did not get it by Tab, which would mark it.
    m_columns[engine::SystemId::One]->Power()->MarkFigure();
    m_formLoaded = true;
}

void Quillon::StartFlags()
{
    for (const engine::SystemId system : engine::kBothSystems) {
        engine::SystemState state;
        state.SetFlag(1, engine::kTrue);
        state.SetFlag(2, engine::kTrue);
        m_systems.State[system] = state;
    }
}

void Quillon::StartSystems()
{
    for (const engine::SystemId system : engine::kBothSystems) {
        m_columns[system]->StartInputs();
    }
    m_antennaGain->ShowGain(m_systems.Data[engine::SystemId::One].AntennaGain);
    m_coaxLoss->ShowLoss();
}

void Quillon::RefreshData(int system)
{
    m_workspace.RefreshData(engine::ToSystemId(system));
}

void Quillon::ShowRecord(int system)
{
    m_columns[engine::ToSystemId(system)]->ShowRecord();
}

void Quillon::LoadAntennaMakers()
{
    const QList<CatalogueEntry> makers = MakerEntries(m_workspace.Catalogue().LoadAntennaMakers());
    for (const engine::SystemId system : engine::kBothSystems) {
        m_columns[system]->Antenna()->SetMakers(makers);
    }
}

void Quillon::ReloadAntennas(const std::string& maker)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        m_columns[system]->Antenna()->Reload(QByteArray::fromStdString(maker));
    }
}

void Quillon::LoadCableMakers()
{
    const QList<CatalogueEntry> makers = MakerEntries(m_workspace.Catalogue().LoadCableMakers());
    for (const engine::SystemId system : engine::kBothSystems) {
        m_columns[system]->Coax()->SetMakers(makers);
    }
}

void Quillon::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        FitFrameTitles();
    }
}

void Quillon::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    emit Unloaded();
}

bool Quillon::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        FitFrameTitles();
    }
    return QMainWindow::eventFilter(watched, event);
}

QList<TitledFrame*> Quillon::InputFrames() const
{
    QList<TitledFrame*> frames;
    for (const engine::SystemId system : engine::kBothSystems) {
        frames += m_columns[system]->Frames();
    }
    return frames;
}

void Quillon::FitFrameTitles()
{
    FitTitles(InputFrames());
}

} // namespace quillon::ui
