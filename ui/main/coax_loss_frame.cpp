#include "ui/main/coax_loss_frame.h"

#include "engine/spin_conversions.h"
#include "ui/main/spin_ranges.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillon::ui {

namespace {

qsizetype PointCount(const QString& text, const QString& separator)
{
    const qsizetype points = text.count(QLatin1Char('.'));
    return separator == QLatin1String(".") ? points : points + text.count(separator);
}

} // namespace

CoaxLossFrame::CoaxLossFrame(Workspace& workspace, QWidget* parent)
    : InputFrame(QStringLiteral("Coax dB Loss/100 Ft"), engine::SystemId::One, workspace, parent)
    , m_text(new NumberBox(5, this))
    , m_spin(new SpinControl(kCoaxLoss, SpinLook::Fine, this))
    , m_options(new OptionPair(QStringLiteral("optCoaxCable"), QStringLiteral("User Data"), QStringLiteral("Coax Data"),
                               this))
{
    Name();
    LayOut();
    optCoaxCable_Click(false);
    connect(m_text, &QLineEdit::textChanged, this, &CoaxLossFrame::txtCoaxLoss_Change);
    connect(m_options, &OptionPair::Changed, this, &CoaxLossFrame::optCoaxCable_Click);
}

void CoaxLossFrame::Name()
{
    setObjectName(QStringLiteral("FrameCoaxLoss"));
    m_text->setObjectName(QStringLiteral("txtCoaxLoss"));
    m_spin->setObjectName(QStringLiteral("vsCoaxLoss"));
    m_text->setAccessibleName(tr("System 1 typed coax loss, dB per 100 feet"));
    m_spin->setAccessibleName(tr("System 1 typed coax loss"));
    m_options->User()->setAccessibleName(tr("System 1 coax loss, user data"));
}

void CoaxLossFrame::LayOut()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(BaseUnit());
    column->addLayout(FieldRow({m_text, m_spin}));
    column->addLayout(m_options->Row());
}

void CoaxLossFrame::ShowLoss()
{
    WriteBox(*m_text, Work().Shortest(engine::RoundTenths(Data().CoaxLoss)), [this] { txtCoaxLoss_Change(); });
}

QList<QWidget*> CoaxLossFrame::TabOrder() const
{
    return {m_text, m_spin, m_options->User(), m_options->Catalogue()};
}

void CoaxLossFrame::txtCoaxLoss_Change()
{
    const QString text = m_text->text();
    const qsizetype points = PointCount(text, Work().Locale().decimalPoint());
    if (points > 1) {
        // Writing the shortened text runs this handler again.
        m_text->setText(text.chopped(1));
    } else if (points == 1 && text.size() == 1) {
        Compute(*m_text, [] {});
    } else {
        TakeOver(*m_text, [this](float loss) { Data().CoaxLoss = loss; });
    }
}

void CoaxLossFrame::optCoaxCable_Click(bool user)
{
    m_text->setEnabled(user);
    m_spin->setEnabled(user);
    emit UseLists(!user);
}

} // namespace quillon::ui
