#pragma once

#include "ui/main/antenna_frame.h"
#include "ui/main/coax_data_frame.h"
#include "ui/main/coax_frame.h"
#include "ui/main/frequency_frame.h"
#include "ui/main/results_frame.h"
#include "ui/main/system_port.h"
#include "ui/main/vswr_frame.h"
#include "ui/main/xmit_power_frame.h"

namespace quillon::ui {

/// All input frames of one system, and what they ask of each other.
class SystemColumn : public QObject, public SystemPort
{
    Q_OBJECT

public:
    SystemColumn(engine::SystemId system, Workspace& workspace, ResultsFrame& results, QWidget* parent);

    bool ShowFrequency(float megahertz, std::string_view mask) override;
    void SetFrequencyFollowsBand(bool follows) override;
    void RunCoaxTypeAgain() override;
    void ShowAntennaStatus(const QString& text) override;
    void ShowCoaxStatus(const QString& text) override;

    /// Sets the record's inputs to their defaults and shows them, in start-up order.
    void StartInputs();

    /// Puts the record into the inputs. The results start anew: what the pair before it had is not this one's.
    void ShowRecord();

    [[nodiscard]] engine::SystemId System() const noexcept { return m_system; }

    [[nodiscard]] XmitPowerFrame* Power() const { return m_power; }

    [[nodiscard]] VSWRFrame* VSWR() const { return m_vswr; }

    [[nodiscard]] FrequencyFrame* Frequency() const { return m_frequency; }

    [[nodiscard]] CoaxFrame* Coax() const { return m_coax; }

    [[nodiscard]] CoaxDataFrame* CoaxData() const { return m_coaxData; }

    [[nodiscard]] AntennaFrame* Antenna() const { return m_antenna; }

    [[nodiscard]] QList<TitledFrame*> Frames() const;

private:
    engine::SystemId m_system;
    Workspace& m_workspace;
    ResultsFrame& m_results;
    XmitPowerFrame* m_power;
    VSWRFrame* m_vswr;
    FrequencyFrame* m_frequency;
    CoaxFrame* m_coax;
    CoaxDataFrame* m_coaxData;
    AntennaFrame* m_antenna;
};

} // namespace quillon::ui
