#include "ui/main/xmit_power_frame.h"

#include "engine/key_checks.h"
#include "engine/spin_conversions.h"
#include "ui/main/spin_ranges.h"
#include "ui/platform/virtual_keys.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/typed_number.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <cmath>

namespace quillon::ui {

namespace {

/// The legal limit of amateur stations: beyond it the figure is shown in red.
constexpr double kHighestPower = 1500;
constexpr std::string_view kRecordMask = "####0";
constexpr QColor kTooMuchInk(255, 0, 0);
constexpr QColor kSystemOneInk(0, 0, 128);
constexpr QColor kSystemTwoInk(64, 64, 64);

QColor UsualInk(engine::SystemId system)
{
    return system == engine::SystemId::One ? kSystemOneInk : kSystemTwoInk;
}

} // namespace

XmitPowerFrame::XmitPowerFrame(engine::SystemId system, Workspace& workspace, QWidget* parent)
    : InputFrame(QStringLiteral("System %1 Xmit Pwr").arg(Number(system)), system, workspace, parent)
    , m_text(new NumberBox(5, this))
    , m_coarse(new SpinControl(kPowerCoarse, SpinLook::Coarse, this))
    , m_fine(new SpinControl(kPowerFine, SpinLook::Fine, this))
{
    Name();
    LayOut();
    Wire();
}

void XmitPowerFrame::Name()
{
    setObjectName(NameFor("FrameXmitPower", System()));
    m_text->setObjectName(NameFor("txtOutputPower", System()));
    m_coarse->setObjectName(IndexedName("vsOutputPower", PairIndex(System(), 0)));
    m_fine->setObjectName(IndexedName("vsOutputPower", PairIndex(System(), 1)));

    m_text->setAccessibleName(tr("System %1 power, watts").arg(Number(System())));
    m_coarse->setAccessibleName(tr("System %1 power, coarse").arg(Number(System())));
    m_fine->setAccessibleName(tr("System %1 power, fine").arg(Number(System())));
}

void XmitPowerFrame::LayOut()
{
    m_text->SetDialled(true);
    m_text->SetInk(UsualInk(System()));
    setLayout(FieldRow({m_text, m_coarse, m_fine}));
}

void XmitPowerFrame::Wire()
{
    m_text->installEventFilter(this);
    connect(m_text, &QLineEdit::textChanged, this, &XmitPowerFrame::txtOutputPower_Change);
    m_coarse->SetFigure([](int position) { return engine::SpinToOutputPower(static_cast<float>(position)).value; });
    m_fine->SetFigure([this](int position) { return engine::SpinToOutputPower(BothPositions(position)).value; });
    connect(m_coarse, &SpinControl::valueChanged, this, &XmitPowerFrame::vsOutputPower_CoarseChange);
    connect(m_fine, &SpinControl::valueChanged, this, &XmitPowerFrame::vsOutputPower_FineChange);
}

void XmitPowerFrame::ShowPower(float watts)
{
    WriteBox(*m_text, Work().Shortest(watts), [this] { txtOutputPower_Change(); });
}

void XmitPowerFrame::ShowRecord()
{
    ShowFigure(*m_text, Work().Masked(Data().XmitPower, kRecordMask));
    ColourText(Data().XmitPower);
}

void XmitPowerFrame::MarkFigure()
{
    m_text->selectAll();
}

QList<QWidget*> XmitPowerFrame::TabOrder() const
{
    return {m_text, m_coarse, m_fine};
}

bool XmitPowerFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!IsModifierAlone(*key)) {
            engine::CheckNumericKey(VirtualKey(*key), Work().Notifier());
        }
    }
    return InputFrame::eventFilter(watched, event);
}

void XmitPowerFrame::vsOutputPower_CoarseChange()
{
    // As given, the coarse control sets the power alone; only the fine one adds the two.
    TakePosition(static_cast<float>(m_coarse->value()));
}

void XmitPowerFrame::vsOutputPower_FineChange()
{
    TakePosition(BothPositions(m_fine->value()));
}

float XmitPowerFrame::BothPositions(int fine) const
{
    return static_cast<float>(fine * 0.1 + m_coarse->value());
}

void XmitPowerFrame::TakePosition(float position)
{
    ShowPower(engine::SpinToOutputPower(position).value);
}

void XmitPowerFrame::txtOutputPower_Change()
{
    if (const auto number = ReadNumber(m_text->text(), Work().Locale()); number.value) {
        ColourText(*number.value);
    }
    TakeOver(*m_text, [this](float watts) { Data().XmitPower = watts; });
}

void XmitPowerFrame::ColourText(float watts)
{
    if (std::nearbyint(static_cast<double>(watts)) > kHighestPower) {
        m_text->SetInk(kTooMuchInk, tr("over 1500 W"));
    } else {
        m_text->SetInk(UsualInk(System()));
    }
}

} // namespace quillon::ui
