// What each kind of gesture consists of.
#include "tests/reliability/monkey_gestures.h"

#include <QApplication>
#include <QClipboard>
#include <QScreen>

#include <array>

namespace quillon::test {

namespace {

constexpr std::array kNavigation{Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Up,     Qt::Key_Down,
                                 Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home,   Qt::Key_End,
                                 Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace};
constexpr std::array kEnding{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space};
constexpr std::array kFunction{Qt::Key_F1,  Qt::Key_F2,       Qt::Key_F3,     Qt::Key_F4,
                               Qt::Key_F10, Qt::Key_Menu,     Qt::Key_Shift,  Qt::Key_Control,
                               Qt::Key_Alt, Qt::Key_CapsLock, Qt::Key_Insert, Qt::Key_unknown};
constexpr std::array kStates{Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowMinimized, Qt::WindowFullScreen};

} // namespace

void Gestures::Click()
{
    if (QWidget* widget = AnyWidget()) {
        m_hands.Wait(1000);
        AddClick(widget, PointIn(*widget), Happens(12) ? Qt::MiddleButton : Qt::LeftButton);
    }
}

void Gestures::ClickAside()
{
    if (QWidget* widget = AnyWidget()) {
        AddClick(widget, PointIn(*widget), Qt::RightButton);
    }
}

void Gestures::DoubleClick()
{
    if (QWidget* widget = AnyWidget()) {
        const QPoint point = PointIn(*widget);
        m_hands.Wait(1000);
        AddClick(widget, point);
        AddClick(widget, point);
    }
}

void Gestures::Drag()
{
    QWidget* widget = AnyWidget();
    if (widget == nullptr) {
        return;
    }
    AddClick(widget, PointIn(*widget));
    const MonkeyEvent release = m_waiting.back();
    m_waiting.pop_back();
    for (int count = 1 + Below(4); count > 0; --count) {
        Move();
    }
    m_waiting.push_back(release);
}

void Gestures::Move()
{
    if (QWidget* widget = AnyWidget()) {
        const QPointer<QWindow> window(widget->window()->windowHandle());
        const QPoint local = widget->mapTo(widget->window(), PointIn(*widget));
        Add("moves the mouse over " + NameOf(*widget).toStdString(), [=, this] { m_hands.MoveMouse(window, local); });
    }
}

void Gestures::Turn()
{
    QWidget* focused = QApplication::focusWidget();
    if (QWidget* widget = focused != nullptr && Happens(2) ? focused : AnyWidget()) {
        const QPointer<QWindow> window(widget->window()->windowHandle());
        const QPoint local = widget->mapTo(widget->window(), PointIn(*widget));
        const QPoint angle(Happens(8) ? 120 : 0, (Below(9) - 4) * (Happens(4) ? 15 : 120));
        Add("turns the wheel by " + std::to_string(angle.y()) + " over " + NameOf(*widget).toStdString(),
            [=, this] { m_hands.TurnWheel(window, local, angle); });
    }
}

void Gestures::TypeText()
{
    AddText(AnyText());
}

void Gestures::TypeNumber()
{
    if (QWidget* box = AnyOf("QLineEdit")) {
        AddClick(box, PointIn(*box));
    }
    AddKey(Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
    AddText(AnyNumber());
}

void Gestures::PressNavigation()
{
    const Qt::Key key = OneOf(kNavigation, m_random);
    const bool isShifted = key == Qt::Key_Backtab || Happens(10);
    AddKey(key, {}, isShifted ? Qt::ShiftModifier : Happens(20) ? Qt::ControlModifier : Qt::NoModifier);
}

void Gestures::PressRepeatedly()
{
    const Qt::Key key = Happens(2) ? OneOf(kNavigation, m_random) : OneOf(kEnding, m_random);
    AddKey(key);
    const MonkeyEvent release = m_waiting.back();
    m_waiting.pop_back();
    for (int count = 1 + Below(8); count > 0; --count) {
        Add("holds it", [=, this] { m_hands.PressKey(key, {}, {}, true); });
    }
    if (!Happens(4)) { // the release may go to nobody
        m_waiting.push_back(release);
    }
}

void Gestures::PressEnding()
{
    const Qt::Key key = OneOf(kEnding, m_random);
    AddKey(key, key == Qt::Key_Space ? QStringLiteral(" ") : QString());
}

void Gestures::PressCommand()
{
    const auto letter = static_cast<char16_t>(u'A' + Below(26));
    AddKey(static_cast<Qt::Key>(letter), QString(QChar(static_cast<char16_t>(letter - u'@'))),
           Happens(6) ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
}

void Gestures::PressAlt()
{
    const auto letter = static_cast<char16_t>(u'A' + Below(26));
    AddKey(static_cast<Qt::Key>(letter), QString(QChar(letter)).toLower(), Qt::AltModifier);
}

void Gestures::PressFunction()
{
    AddKey(OneOf(kFunction, m_random), {}, Happens(6) ? Qt::AltModifier : Qt::NoModifier);
}

void Gestures::Compose()
{
    const QString text = AnyText();
    Add("composes \"" + text.toStdString() + "\"", [=, this] { m_hands.Commit(text); });
}

void Gestures::Paste()
{
    const QString text = Happens(10) ? QString(5000, u'7') : Happens(2) ? AnyText() : AnyNumber();
    Add("copies \"" + text.left(40).toStdString() + "\"", [=] { QGuiApplication::clipboard()->setText(text); });
    AddKey(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
}

void Gestures::ChooseInList()
{
    QWidget* list = AnyOf("QComboBox");
    if (list == nullptr) {
        return;
    }
    AddClick(list, {list->width() / 4, list->height() / 2});
    if (Happens(2)) {
        AddKey(Qt::Key_F4);
    }
    for (int count = 1 + Below(5); count > 0; --count) {
        AddKey(Happens(6) ? Qt::Key_PageDown : Qt::Key_Down);
    }
    AddKey(Qt::Key_Return, QStringLiteral("\r"));
}

void Gestures::Activate()
{
    QWidget* window = Window();
    if (window != nullptr && window->windowType() != Qt::Popup) {
        Add("activates " + NameOf(*window).toStdString(), [target = QPointer<QWidget>(window)] {
            if (target != nullptr && target->isVisible()) {
                target->activateWindow();
            }
        });
    }
}

void Gestures::Place()
{
    QWidget* window = Window();
    if (window == nullptr || window->windowType() == Qt::Popup) {
        return;
    }
    const QRect room = window->screen()->availableGeometry();
    const int width = 100 + Below(std::max(1, room.width() - 100));
    const int height = 100 + Below(std::max(1, room.height() - 100));
    Add("resizes " + NameOf(*window).toStdString() + " to " + std::to_string(width) + "x" + std::to_string(height),
        [target = QPointer<QWidget>(window), room, width, height] {
            if (target == nullptr || !target->isVisible()) {
                return;
            }
            target->resize(width, height); // as small as the window lets itself be made
            QRect place = target->geometry();
            place.moveCenter(room.center());
            target->setGeometry(place);
        });
}

void Gestures::SetState()
{
    QWidget* window = Window();
    if (window != nullptr && window->windowType() == Qt::Window) {
        const Qt::WindowState state = OneOf(kStates, m_random);
        for (const Qt::WindowStates next : {Qt::WindowStates(state), Qt::WindowStates(Qt::WindowNoState)}) {
            Add("gives " + NameOf(*window).toStdString() + " state " + std::to_string(next.toInt()),
                [target = QPointer<QWidget>(window), next] {
                    if (target != nullptr && target->isVisible()) {
                        target->setWindowState(next);
                    }
                });
            m_waiting.back().isAnswered = true;
        }
    }
}

void Gestures::Close()
{
    // A window behind a modal one cannot be closed.
    QWidget* window = FrontWindow();
    if (window != nullptr) {
        Add("closes " + NameOf(*window).toStdString(), [target = QPointer<QWidget>(window)] {
            if (target != nullptr && target == FrontWindow()) {
                target->close();
            }
        });
    }
}

void Gestures::ActOutside()
{
    Add("another program acts", [this] { m_outside.Act(m_random); });
    m_waiting.back().isFromOutside = true;
}

} // namespace quillon::test
