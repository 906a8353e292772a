#include "ui/startup/splash.h"

#include "ui/platform/virtual_keys.h"
#include "ui/startup/notice_label.h"
#include "ui/startup/notices.h"
#include "ui/startup/polar_picture.h"
#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/scrolled_window.h"
#include "ui/widgets/spoken.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include <array>
#include <utility>

namespace quillon::ui {

namespace {

const QString kTitle = QStringLiteral("Quillon");
/// The spelling is as given.
const QString kAccuracy = QStringLiteral(
    "The pre-programmed coax cable and antenna data are derived from published specifications and are believed to be "
    "accurate. If descrepancies between known values and pre-programmed data are found please report them to the "
    "author so future versions of this program may include the corrections. Thanks.");
const QString kPurpose = QStringLiteral("This application is designed for demonstration purposes only.");
const QString kDisclaimer = QStringLiteral("All manufacturers and products mentioned within this program are "
                                           "Trademarks of or Copyrighted by their respective owners.");

// In base units.
constexpr int kPictureSide = 28;
constexpr int kMargin = 5;
constexpr int kGap = 6;

constexpr NoticeLabel::Column kColumn{66, kMargin + kPictureSide + kGap + kMargin};
constexpr double kTitleFactor = 2.8;
/// In a large font on a small screen the texts step down, before any of them is cut.
constexpr std::array kFontSteps{1.0, 0.9, 0.8, 0.7, 0.6, 0.5};

/// Not a splash window by type, which many window managers give no keyboard.
constexpr Qt::WindowFlags kFlags = Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

QuietLabel* AddText(QWidget* parent, const QString& name, const QString& text, QuietLabel::Tone tone)
{
    auto* label = new NoticeLabel(tone, kColumn, parent);
    label->setObjectName(name);
    label->setText(text);
    return label;
}

QuietLabel* AddTitle(QWidget* parent)
{
    auto* label = new QuietLabel(QuietLabel::Tone::Normal, 1.0, parent);
    label->setObjectName(QStringLiteral("lblTitle"));
    label->setText(kTitle);
    return label;
}

} // namespace

Splash::Splash(std::function<void()> showMainWindow, const Waits& waits, QWidget* parent)
    : QWidget(parent, kFlags)
    , m_showMainWindow(std::move(showMainWindow))
    , m_waits(waits)
{
    setObjectName(QStringLiteral("Splash"));
    setWindowTitle(kTitle);
    SetSpokenRole(*this, QAccessible::Dialog);
    LayOut();

    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Splash::EndWait);
}

void Splash::LayOut()
{
    const int unit = BaseUnit();
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2 * unit);
    texts->addWidget(AddTitle(this));
    texts->addWidget(AddText(this, IndexedName(QStringLiteral("lblTextOne"), 0), kAccuracy, QuietLabel::Tone::Normal));
    texts->addWidget(AddText(this, IndexedName(QStringLiteral("lblTextOne"), 1), kPurpose, QuietLabel::Tone::Normal));
    texts->addSpacing(unit);
    texts->addWidget(new Hairline(this));
    texts->addSpacing(unit);
    texts->addWidget(AddText(this, QStringLiteral("lblDisclaimer"), kDisclaimer, QuietLabel::Tone::Quiet));
    texts->addWidget(AddText(this, QStringLiteral("lblCopyright"), kMakersNotice.toString(), QuietLabel::Tone::Quiet));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin * unit, 4 * unit, kMargin * unit, 4 * unit);
    row->setSpacing(kGap * unit);
    row->addWidget(new PolarPicture(kPictureSide, this));
    row->addLayout(texts);
    row->setSizeConstraint(QLayout::SetFixedSize);
    FitToScreen();
}

void Splash::FitToScreen()
{
    for (const double factor : kFontSteps) {
        for (QuietLabel* label : findChildren<QuietLabel*>()) {
            const bool isTitle = label->objectName() == u"lblTitle";
            label->setFont(SansSerif(isTitle ? ScaledFont(factor * kTitleFactor, QFont::Bold) : ScaledFont(factor)));
        }
        layout()->invalidate();
        const QSize needed = layout()->totalSizeHint();
        if (needed.boundedTo(RoomFor(*this)) == needed) {
            return;
        }
    }
}

void Splash::PlaceInMiddle()
{
    adjustSize();
    QRect place(QPoint(), size());
    place.moveCenter(screen()->availableGeometry().center());
    move(place.topLeft());
}

void Splash::Open()
{
    PlaceInMiddle();
    show();
    activateWindow();
    m_timer.start(m_waits.alone);
}

void Splash::EndWait()
{
    if (m_isMainWindowShown) {
        hide();
    } else {
        ShowMainWindow();
        m_timer.start(m_waits.together);
    }
}

void Splash::Unload()
{
    hide();
    ShowMainWindow();
}

void Splash::ShowMainWindow()
{
    if (!std::exchange(m_isMainWindowShown, true)) {
        m_showMainWindow();
    }
}

bool Splash::event(QEvent* event)
{
    // A dialog or a message that the main window opens must not come to stand behind this window.
    if (event->type() == QEvent::WindowBlocked) {
        Unload();
    }
    // Settings of some desktops come with the first events only, when this window is laid out already.
    if (event->type() == QEvent::ApplicationFontChange) {
        FitToScreen();
        PlaceInMiddle();
    }
    return QWidget::event(event);
}

void Splash::keyPressEvent(QKeyEvent* event)
{
    // Alone, a modifier is on the way to something that is not meant for this window.
    if (!IsModifierAlone(*event)) {
        Unload();
    }
}

void Splash::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void Splash::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    // At the release, so that the main window does not get one without its press.
    Unload();
}

void Splash::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    Unload();
}

void Splash::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(QPen(OutlineColor(palette()), 1));
    painter.setBrush(CardColor(palette()));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace quillon::ui
