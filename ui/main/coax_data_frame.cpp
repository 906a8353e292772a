#include "ui/main/coax_data_frame.h"

#include "engine/arithmetic_error.h"
#include "engine/coax_model.h"
#include "engine/spin_conversions.h"
#include "ui/main/spin_ranges.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/typed_number.h"

#include <QGridLayout>
#include <QLabel>

namespace quillon::ui {

namespace {

constexpr std::string_view kRecordLengthMask = "0.0";
constexpr std::string_view kMetresMask = "0.0";
constexpr double kMetresPerFoot = 0.3048;

} // namespace

CoaxDataFrame::CoaxDataFrame(engine::SystemId system, Workspace& workspace, QWidget* parent)
    : InputFrame(QStringLiteral("System %1 Coax data").arg(Number(system)), system, workspace, parent)
    , m_length(new NumberBox(5, this))
    , m_lengthSpin(new SpinControl(kCoaxLength, SpinLook::Fine, this))
    , m_connectors(new NumberBox(5, this))
    , m_connectorSpin(new SpinControl(kConnectors, SpinLook::Fine, this))
    , m_lengthLabel(FieldLabel(QStringLiteral("Coax Length in '"), m_length, this))
    , m_connectorLabel(FieldLabel(QStringLiteral("# of Connectors"), m_connectors, this))
{
    Name();
    LayOut();
    Wire();
}

void CoaxDataFrame::Name()
{
    setObjectName(SpelledName("FrameSys%1Coax", System()));
    m_length->setObjectName(SpelledName("txtSystem%1CoaxLength", System()));
    m_lengthSpin->setObjectName(SpelledName("vsSystem%1CoaxLength", System()));
    m_connectors->setObjectName(SpelledName("txtSystem%1NumConnectors", System()));
    m_connectorSpin->setObjectName(SpelledName("vsSystem%1NumConnectors", System()));
    m_lengthLabel->setObjectName(NameFor("lblLength", System()));
    m_connectorLabel->setObjectName(NameFor("lblNumCOnnectors", System()));

    m_length->setAccessibleName(tr("System %1 coax length, feet").arg(Number(System())));
    m_lengthSpin->setAccessibleName(tr("System %1 coax length").arg(Number(System())));
    m_connectors->setAccessibleName(tr("System %1 number of connectors").arg(Number(System())));
    m_connectorSpin->setAccessibleName(tr("System %1 connectors").arg(Number(System())));
}

void CoaxDataFrame::LayOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(3 * BaseUnit());
    grid->setVerticalSpacing(BaseUnit());
    grid->addWidget(m_lengthLabel, 0, 0);
    grid->addWidget(m_connectorLabel, 0, 1);
    grid->addLayout(FieldRow({m_length, m_lengthSpin}), 1, 0);
    grid->addLayout(FieldRow({m_connectors, m_connectorSpin}), 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
}

void CoaxDataFrame::Wire()
{
    m_lengthSpin->SetFigure([](int position) { return engine::SpinToCoaxLength(static_cast<float>(position)).value; });
    m_connectorSpin->SetFigure([](int position) { return engine::SpinToConnectors(position); });
    connect(m_length, &QLineEdit::textChanged, this, &CoaxDataFrame::txtCoaxLength_Change);
    connect(m_lengthSpin, &SpinControl::valueChanged, this, &CoaxDataFrame::vsCoaxLength_Change);
    connect(m_connectors, &QLineEdit::textChanged, this, &CoaxDataFrame::txtNumConnectors_Change);
    connect(m_connectorSpin, &SpinControl::valueChanged, this, &CoaxDataFrame::vsNumConnectors_Change);
}

void CoaxDataFrame::ShowLength(float feet)
{
    WriteBox(*m_length, Work().Shortest(feet), [this] { txtCoaxLength_Change(); });
}

void CoaxDataFrame::TakeConnectorPosition()
{
    const int position = m_connectorSpin->value();
    Data().Connectors = static_cast<std::int16_t>(position);
    WriteBox(*m_connectors, QString::number(engine::SpinToConnectors(position)), [this] { txtNumConnectors_Change(); });
}

void CoaxDataFrame::ShowRecord()
{
    ShowFigure(*m_length, Work().Masked(Data().CoaxLength, kRecordLengthMask));
    TellMetres();
    ShowFigure(*m_connectors, QString::number(Data().Connectors));
    txtNumConnectors_Change();
}

QList<QWidget*> CoaxDataFrame::TabOrder() const
{
    return {m_length, m_lengthSpin, m_connectors, m_connectorSpin};
}

void CoaxDataFrame::vsCoaxLength_Change()
{
    ShowLength(engine::SpinToCoaxLength(static_cast<float>(m_lengthSpin->value())).value);
    ComputeAgain(*m_length);
}

void CoaxDataFrame::vsNumConnectors_Change()
{
    TakeConnectorPosition();
    ComputeAgain(*m_connectors);
}

void CoaxDataFrame::txtCoaxLength_Change()
{
    TakeOver(*m_length, [this](float feet) { Data().CoaxLength = feet; });
    TellMetres();
}

void CoaxDataFrame::TellMetres()
{
    const Typed<float> feet = ReadNumber(m_length->text(), Work().Locale());
    if (!feet.value) {
        m_length->SetHint({});
        return;
    }
    const auto metres = static_cast<float>(*feet.value * kMetresPerFoot);
    m_length->SetHint(tr("%1 m").arg(Work().Masked(metres, kMetresMask)));
}

void CoaxDataFrame::txtNumConnectors_Change()
{
    if (m_connectors->text().isEmpty()) {
        Compute(*m_connectors, [this] { Work().Results(System()).ConnectorLoss = 0; });
        return;
    }
    const Typed<std::int16_t> count = ReadWholeNumber(m_connectors->text(), Work().Locale());
    if (!count.value) {
        m_connectors->Mark(count.problem);
        return;
    }
    Compute(*m_connectors, [&] { StoreConnectors(*count.value); });
}

void CoaxDataFrame::StoreConnectors(std::int16_t count)
{
    Data().Connectors = count;
    const float loss = engine::ConnectorLossPerConnector(Data().Frequency) * static_cast<float>(count);
    Data().ConnectorLoss = engine::Checked(loss);
    Work().Results(System()).ConnectorLoss = Data().ConnectorLoss;
}

} // namespace quillon::ui
