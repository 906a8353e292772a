#include "bench/ui/watch/session.h"

#include "bench/ui/watch/flushes.h"
#include "bench/ui/watch/memory.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <stdexcept>

namespace quillon::bench {

namespace {

constexpr int kLookEvery = 20;      // ms
constexpr int kKeyIsDone = 60;      // ms without a repaint
constexpr int kWindowSettled = 700; // ms without a repaint
constexpr int kBeforeClick = 200;   // ms: whatever comes with a new window has come

QWidget* WidgetOf(const QWindow& window)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == &window) {
            return widget;
        }
    }
    return nullptr;
}

template <class Event>
void Send(QWidget& widget, Event event)
{
    QCoreApplication::sendEvent(&widget, &event);
}

/// Chooses the first entry of each of System One's lists, so that all results are computed.
void ChooseEverything(QWidget& window)
{
    for (const QString& list : {QStringLiteral("cboSystemOneAntenna(%1)"), QStringLiteral("cboSystemOneCoax(%1)")}) {
        for (int place = 0; place < 3; ++place) {
            if (auto* box = window.findChild<QComboBox*>(list.arg(place)); box != nullptr) {
                box->setCurrentIndex(0);
            }
        }
    }
}

} // namespace

Session::Session()
    : m_keysWanted(qEnvironmentVariableIntValue("WATCH_KEYS"))
{
    // A blinking caret repaints the window, too.
    QApplication::setCursorFlashTime(0);
    ListenToFlushes([this](QWindow& window, const Moment& done) { OnFlush(window, done); });
    connect(&m_timer, &QTimer::timeout, this, &Session::LookAround);
    m_timer.start(kLookEvery);
}

void Session::OnFlush(QWindow& window, const Moment& done)
{
    m_sinceFlush.start();
    if (&window == m_main && !m_keys.empty()) {
        m_keys.back().repainted = done;
        ++m_keys.back().flushes;
    } else if (&window != m_main && &window != m_splash) {
        OnFirstFlush(window, done);
    }
}

void Session::OnFirstFlush(QWindow& window, const Moment& done)
{
    QWidget* widget = WidgetOf(window);
    if (widget != nullptr && widget->objectName() == QStringLiteral("Splash")) {
        m_splash = &window;
        m_splashPainted = done;
        QTimer::singleShot(kBeforeClick, this, [this, widget] { EndSplash(*widget); });
    } else if (m_main == nullptr) {
        m_main = &window;
        m_mainPainted = done;
    }
}

void Session::EndSplash(QWidget& splash)
{
    m_splashClicked = Moment::Now();
    const QPointF middle = splash.rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        Send(splash, QMouseEvent(type, middle, splash.mapToGlobal(middle), Qt::LeftButton, held, Qt::NoModifier));
    }
}

void Session::LookAround()
{
    const int quiet = m_keys.empty() ? kWindowSettled : kKeyIsDone;
    if (m_main == nullptr || m_sinceFlush.elapsed() < quiet) {
        return;
    }
    if (static_cast<int>(m_keys.size()) >= m_keysWanted) {
        Finish();
    } else if (m_keys.empty()) {
        ChooseEverything(*WidgetOf(*m_main));
        QApplication::focusWidget()->setFocus();
        PressKey();
    } else {
        PressKey();
    }
}

void Session::PressKey()
{
    auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (box == nullptr) {
        throw std::runtime_error("no text box has the keyboard");
    }
    // A digit is added and taken away, another one each time: every key changes all results.
    const bool adds = m_keys.size() % 2 == 0;
    const int digit = static_cast<int>(m_keys.size() / 2 % 9) + 1;
    box->end(false);
    m_keys.push_back({Moment::Now(), {}, 0});
    const int key = adds ? Qt::Key_0 + digit : Qt::Key_Backspace;
    Send(*box, QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, adds ? QString::number(digit) : QString()));
    Send(*box, QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
}

void Session::Finish()
{
    m_timer.stop();
    QJsonArray keys;
    for (const Key& key : m_keys) {
        QJsonObject times = Times(key.pressed, key.repainted);
        times[QStringLiteral("flushes")] = key.flushes;
        keys.append(times);
    }
    const QJsonObject found{
        {QStringLiteral("splash"), Times(Moment::Start(), m_splashPainted)},
        {QStringLiteral("main"), Times(m_splash != nullptr ? m_splashClicked : Moment::Start(), m_mainPainted)},
        {QStringLiteral("has_splash"), m_splash != nullptr},
        {QStringLiteral("memory"), HeldMemory()},
        {QStringLiteral("keys"), keys},
    };
    QFile out(qEnvironmentVariable("WATCH_OUT"));
    if (!out.open(QIODevice::WriteOnly) || out.write(QJsonDocument(found).toJson()) < 0) {
        throw std::runtime_error("cannot write what was found");
    }
    QCoreApplication::exit();
}

} // namespace quillon::bench
