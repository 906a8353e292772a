#include "ui/main/vswr_frame.h"

#include "engine/mask.h"
#include "engine/spin_conversions.h"
#include "ui/main/spin_ranges.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"

#include <QHBoxLayout>

namespace quillon::ui {

namespace {

constexpr std::string_view kVSWRMask = "0.0";
constexpr float kStartVSWR = 1.1F;

/// The standing-wave ratio that the positions of both spin controls stand for.
float RatioOf(int whole, int tenths)
{
    const auto sum = static_cast<float>(tenths * 0.1 + whole);
    return engine::RoundWithMask(engine::SpinToVSWR(engine::RoundWithMask(sum, kVSWRMask)).value, kVSWRMask);
}

} // namespace

VSWRFrame::VSWRFrame(engine::SystemId system, Workspace& workspace, QWidget* parent)
    : InputFrame(QStringLiteral("System %1 VSWR").arg(Number(system)), system, workspace, parent)
    , m_text(new NumberBox(3, this))
    , m_suffix(new QLineEdit(QStringLiteral(":1"), this))
    , m_whole(new SpinControl(kVSWRWhole, SpinLook::Coarse, this))
    , m_tenths(new SpinControl(kVSWRTenths, SpinLook::Fine, this))
{
    Name();
    LayOut();
    ShowVSWR(kStartVSWR);
    m_whole->SetFigure([this](int position) { return RatioOf(position, m_tenths->value()); });
    m_tenths->SetFigure([this](int position) { return RatioOf(m_whole->value(), position); });
    connect(m_whole, &SpinControl::valueChanged, this, &VSWRFrame::vsVSWR_Change);
    connect(m_tenths, &SpinControl::valueChanged, this, &VSWRFrame::vsVSWR_Change);
}

void VSWRFrame::Name()
{
    setObjectName(NameFor("FrameVSWR", System()));
    m_text->setObjectName(NameFor("txtVSWR", System()));
    m_suffix->setObjectName(IndexedName("txtVSWRSuffix", Number(System()) - 1));
    m_whole->setObjectName(IndexedName("vsVSWR", PairIndex(System(), 0)));
    m_tenths->setObjectName(IndexedName("vsVSWR", PairIndex(System(), 1)));

    m_text->setAccessibleName(tr("System %1 VSWR").arg(Number(System())));
    m_suffix->setAccessibleName(tr("System %1 VSWR, to one").arg(Number(System())));
    m_whole->setAccessibleName(tr("System %1 VSWR, whole part").arg(Number(System())));
    m_tenths->setAccessibleName(tr("System %1 VSWR, tenths").arg(Number(System())));
}

void VSWRFrame::LayOut()
{
    m_text->SetDialled(true);
    m_text->SetByArrowsOnly();
    m_suffix->setReadOnly(true);
    m_suffix->setFrame(false);
    m_suffix->setFocusPolicy(Qt::NoFocus);
    m_suffix->setFont(ScaledFont(1.15, QFont::DemiBold));
    m_suffix->setFixedWidth(QFontMetrics(m_suffix->font()).horizontalAdvance(m_suffix->text()) + 2 * BaseUnit());
    QPalette clear = m_suffix->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    m_suffix->setPalette(clear);
    setLayout(FieldRow({m_text, m_suffix, m_whole, m_tenths}));
}

void VSWRFrame::ShowVSWR(float ratio)
{
    m_text->setText(Work().Masked(ratio, kVSWRMask));
}

void VSWRFrame::ShowRecord()
{
    ShowFigure(*m_text, Work().Masked(Data().VSWR, kVSWRMask));
}

QList<QWidget*> VSWRFrame::TabOrder() const
{
    return {m_text, m_whole, m_tenths};
}

void VSWRFrame::vsVSWR_Change()
{
    Compute(*m_text, [this] {
        Data().VSWR = RatioOf(m_whole->value(), m_tenths->value());
        ShowVSWR(Data().VSWR);
    });
}

} // namespace quillon::ui
