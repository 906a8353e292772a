#pragma once

#include "engine/calculations.h"
#include "ui/main/antenna_gain_frame.h"
#include "ui/main/coax_loss_frame.h"
#include "ui/main/command_frame.h"
#include "ui/main/results_frame.h"
#include "ui/main/system_column.h"
#include "ui/main/workspace.h"
#include "ui/platform/main_window_port.h"

#include <QMainWindow>

namespace quillon::ui {

/// What the main window is built on; made where the program starts, outlives the window.
struct QuillonParts
{
    engine::AntennaSystems& systems;
    engine::EngineHooks& hooks;
    engine::Notifier& notifier;
    const store::Catalogue& catalogue;
};

/// The main window: the inputs of both antenna systems and, between them, their results.
class Quillon : public QMainWindow, public MainWindowPort
{
    Q_OBJECT

public:
    explicit Quillon(const QuillonParts& parts, QWidget* parent = nullptr);

    /// Runs the start-up sequence: fills tables and lists and sets both systems to their defaults. Once per window.
    void Load();

    /// Whether the start-up sequence is finished.
    [[nodiscard]] bool FormLoaded() const noexcept { return m_formLoaded; }

    [[nodiscard]] engine::AntennaSystems& Systems() override { return m_systems; }

    /// @throws engine::ArithmeticError when the inputs cannot be computed with; the results then stay as they were.
    void RefreshData(int system) override;
    void ShowRecord(int system) override;

    void SetSavedFlags() override { m_workspace.SetSavedFlags(); }

    void LoadAntennaMakers() override;
    void ReloadAntennas(const std::string& maker) override;
    /// Fills the coax brand lists of both systems, keeping what is chosen.
    void LoadCableMakers();

signals:
    /// A person asks for something that other windows do.
    void CommandGiven(Command command);
    /// The window is unloaded, by its close box or otherwise, and with it the program.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Wire();
    void StartFlags();
    void StartSystems();
    [[nodiscard]] QList<TitledFrame*> InputFrames() const;
    void FitFrameTitles();

    engine::AntennaSystems& m_systems;
    QWidget* m_content;
    ResultsFrame* m_results;
    engine::Calculations m_calculations;
    Workspace m_workspace;
    engine::PerSystem<SystemColumn*> m_columns;
    CoaxLossFrame* m_coaxLoss;
    AntennaGainFrame* m_antennaGain;
    CommandFrame* m_commands;
    bool m_formLoaded = false;
};

} // namespace quillon::ui
