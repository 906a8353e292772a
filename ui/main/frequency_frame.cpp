#include "ui/main/frequency_frame.h"

#include "engine/bands.h"
#include "ui/main/spin_ranges.h"
#include "ui/main/system_port.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quillon::ui {

namespace {

constexpr std::string_view kFrequencyMask = "#####.##0";
constexpr std::string_view kRecordMask = "##0.000";

} // namespace

FrequencyFrame::FrequencyFrame(engine::SystemId system, Workspace& workspace, SystemPort& port, QWidget* parent)
    : InputFrame(QStringLiteral("System %1 Xmit Freq").arg(Number(system)), system, workspace, parent)
    , m_port(port)
    , m_text(new NumberBox(7, this))
    , m_spin(new SpinControl(kFrequency, SpinLook::Fine, this))
    , m_label(FieldLabel(QStringLiteral("Transmit Frequency in Mhz"), m_text, this))
{
    Name();
    LayOut();
    connect(m_text, &QLineEdit::textChanged, this, &FrequencyFrame::txtFrequency_Change);
    m_spin->SetFigure([](int position) { return engine::BandFrequency(position).frequency; });
    connect(m_spin, &SpinControl::valueChanged, this, &FrequencyFrame::vsFrequency_Change);
}

void FrequencyFrame::Name()
{
    setObjectName(NameFor("FrameFrequency", System()));
    m_text->setObjectName(NameFor("txtFrequency", System()));
    m_spin->setObjectName(NameFor("vsFrequency", System()));
    m_label->setObjectName(NameFor("lblFrequency", System()));

    m_text->setAccessibleName(tr("System %1 frequency, MHz").arg(Number(System())));
    m_spin->setAccessibleName(tr("System %1 frequency").arg(Number(System())));
}

void FrequencyFrame::LayOut()
{
    m_text->SetDialled(true);
    m_label->setFont(ScaledFont(0.9));
    m_label->setWordWrap(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(BaseUnit());
    row->addLayout(FieldRow({m_text, m_spin}), 2);
    row->addWidget(m_label, 3);
}

void FrequencyFrame::TakeSpinFrequency()
{
    const float megahertz = engine::BandFrequency(m_spin->value()).frequency;
    Data().Frequency = megahertz;
    ShowFrequency(megahertz, kFrequencyMask);
}

bool FrequencyFrame::ShowFrequency(float megahertz, std::string_view mask)
{
    WriteBox(*m_text, Work().Masked(megahertz, mask), [this] { txtFrequency_Change(); });
    return !m_text->IsMarked();
}

void FrequencyFrame::ShowRecord()
{
    ShowFigure(*m_text, Work().Masked(Data().Frequency, kRecordMask));
}

void FrequencyFrame::SetFollowsBand(bool follows)
{
    m_text->setReadOnly(follows);
    m_spin->setEnabled(!follows);
}

QList<QWidget*> FrequencyFrame::TabOrder() const
{
    return {m_text, m_spin};
}

void FrequencyFrame::vsFrequency_Change()
{
    TakeSpinFrequency();
    if (Data().UseCoaxList != engine::kFalse) {
        m_port.RunCoaxTypeAgain();
    }
}

void FrequencyFrame::txtFrequency_Change()
{
    TakeOver(*m_text, [this](float megahertz) { Data().Frequency = megahertz; });
}

} // namespace quillon::ui
