#include "ui/main/antenna_gain_frame.h"

#include "engine/spin_conversions.h"
#include "ui/main/spin_ranges.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillon::ui {

AntennaGainFrame::AntennaGainFrame(Workspace& workspace, QWidget* parent)
    : InputFrame(QStringLiteral("Antenna Gain in dB"), engine::SystemId::One, workspace, parent)
    , m_text(new NumberBox(5, this))
    , m_coarse(new SpinControl(kAntennaGainCoarse, SpinLook::Coarse, this))
    , m_fine(new SpinControl(kAntennaGainFine, SpinLook::Fine, this))
    , m_options(new OptionPair(QStringLiteral("optAntenna"), QStringLiteral("User Data"),
                               QStringLiteral("Antenna Data"), this))
{
    Name();
    LayOut();
    optAntenna_Click(false);
    connect(m_text, &QLineEdit::textChanged, this, &AntennaGainFrame::txtAntennaGain_Change);
    connect(m_coarse, &SpinControl::valueChanged, this, &AntennaGainFrame::vsAntennaGain_Change);
    connect(m_fine, &SpinControl::valueChanged, this, &AntennaGainFrame::vsAntennaGain_Change);
    connect(m_options, &OptionPair::Changed, this, &AntennaGainFrame::optAntenna_Click);
}

void AntennaGainFrame::Name()
{
    setObjectName(QStringLiteral("FrameAntennaGain"));
    m_text->setObjectName(QStringLiteral("txtAntennaGain"));
    m_coarse->setObjectName(IndexedName("vsAntennaGain", 0));
    m_fine->setObjectName(IndexedName("vsAntennaGain", 1));
    m_text->setAccessibleName(tr("System 1 typed antenna gain, dB"));
    m_coarse->setAccessibleName(tr("System 1 typed antenna gain, coarse"));
    m_fine->setAccessibleName(tr("System 1 typed antenna gain, fine"));
    m_options->User()->setAccessibleName(tr("System 1 antenna gain, user data"));
}

void AntennaGainFrame::LayOut()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(BaseUnit());
    column->addLayout(FieldRow({m_text, m_coarse, m_fine}));
    column->addLayout(m_options->Row());
}

void AntennaGainFrame::ShowGain(float decibels)
{
    WriteBox(*m_text, Work().Shortest(decibels), [this] { txtAntennaGain_Change(); });
}

QList<QWidget*> AntennaGainFrame::TabOrder() const
{
    return {m_text, m_coarse, m_fine, m_options->User(), m_options->Catalogue()};
}

void AntennaGainFrame::txtAntennaGain_Change()
{
    TakeOver(*m_text, [this](float decibels) {
        if (Work().State(System()).Flag(engine::kComputeFlag) != engine::kFalse) {
            Data().UseAntennaList = engine::kTrue;
        }
        Data().AntennaGain = decibels;
    });
}

void AntennaGainFrame::vsAntennaGain_Change()
{
    // As given, both controls read the coarse one: the fine one moves without an effect of its own.
    ShowGain(engine::SpinToAntennaGain(static_cast<float>(m_coarse->value()) / 10).value);
}

void AntennaGainFrame::optAntenna_Click(bool user)
{
    m_text->setEnabled(user);
    m_coarse->setEnabled(user);
    m_fine->setEnabled(user);
    emit UseLists(!user);
}

} // namespace quillon::ui
