#include "ui/main/system_column.h"

namespace quillon::ui {

namespace {

constexpr float kStartLength = 100;
constexpr float kStartPower = 100;
constexpr float kStartVSWR = 1.1F;

} // namespace

SystemColumn::SystemColumn(engine::SystemId system, Workspace& workspace, ResultsFrame& results, QWidget* parent)
    : QObject(parent)
    , m_system(system)
    , m_workspace(workspace)
    , m_results(results)
    , m_power(new XmitPowerFrame(system, workspace, parent))
    , m_vswr(new VSWRFrame(system, workspace, parent))
    , m_frequency(new FrequencyFrame(system, workspace, *this, parent))
    , m_coax(new CoaxFrame(system, workspace, *this, parent))
    , m_coaxData(new CoaxDataFrame(system, workspace, parent))
    , m_antenna(new AntennaFrame(system, workspace, *this, parent))
{
    m_coax->SetNext(m_antenna->FirstList());
}

bool SystemColumn::ShowFrequency(float megahertz, std::string_view mask)
{
    return m_frequency->ShowFrequency(megahertz, mask);
}

void SystemColumn::SetFrequencyFollowsBand(bool follows)
{
    m_frequency->SetFollowsBand(follows);
}

void SystemColumn::RunCoaxTypeAgain()
{
    m_coax->cboCoax_Click(CoaxFrame::Type);
}

void SystemColumn::ShowAntennaStatus(const QString& text)
{
    m_results.ShowAntennaStatus(m_system, text);
}

void SystemColumn::ShowCoaxStatus(const QString& text)
{
    m_results.ShowCoaxStatus(m_system, text);
}

void SystemColumn::StartInputs()
{
    engine::SystemData& data = m_workspace.Data(m_system);
    data.AntennaBrand = "";
    data.CoaxBrand = "";
    data.AntennaGain = 0;
    data.UseAntennaList = engine::kFalse;
    m_frequency->TakeSpinFrequency();
    data.CoaxLength = kStartLength;
    m_coaxData->ShowLength(kStartLength);
    data.CoaxLoss = 0;
    m_coaxData->TakeConnectorPosition();
    data.XmitPower = kStartPower;
    m_power->ShowPower(kStartPower);
    data.VSWR = kStartVSWR;
}

void SystemColumn::ShowRecord()
{
    m_results.StartValues(m_system);
    m_power->ShowRecord();
    m_vswr->ShowRecord();
    m_frequency->ShowRecord();
    m_coaxData->ShowRecord();
    m_coax->ShowRecord();
    m_antenna->ShowRecord();
}

QList<TitledFrame*> SystemColumn::Frames() const
{
    return {m_power, m_vswr, m_frequency, m_coax, m_coaxData, m_antenna};
}

} // namespace quillon::ui
