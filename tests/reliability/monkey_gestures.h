#pragma once

#include "tests/reliability/monkey_hands.h"
#include "tests/reliability/monkey_outside.h"

#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace quillon::test {

/// One event, told in a few words and ready to be delivered.
struct MonkeyEvent
{
    std::string what;
    std::function<void()> deliver;
    bool isFromOutside = false; ///< another program's doing
    bool isAnswered = false;    ///< by the display, in an event that has to come before further ones
};

/// One of several, by chance.
template <class Choices>
const auto& OneOf(const Choices& choices, std::mt19937& random)
{
    return choices[static_cast<typename Choices::size_type>(random() % static_cast<unsigned>(choices.size()))];
}

/// What a widget is called in reports: its class and its name, or the name of what it stands in.
[[nodiscard]] QString NameOf(const QWidget& widget);

/// Makes up what a monkey does next: gestures of several events each, chosen at random with weights that let it get
/// somewhere. The same seed makes up the same gestures over the same windows.
class Gestures
{
public:
    Gestures(unsigned seed, OutsideProgram outside);

    /// The next event.
    [[nodiscard]] MonkeyEvent Next();

    [[nodiscard]] std::mt19937& Random() { return m_random; }

private:
    struct Gesture
    {
        unsigned weight;
        void (Gestures::*begin)();
    };

    void Begin();

    [[nodiscard]] int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    [[nodiscard]] bool Happens(int oneIn) { return Below(oneIn) == 0; }

    void Add(std::string what, std::function<void()> deliver);
    void AddKey(Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {});
    void AddText(const QString& text);
    void AddClick(QWidget* widget, QPoint point, Qt::MouseButton button = Qt::LeftButton);

    [[nodiscard]] QWidget* Window();
    [[nodiscard]] QWidget* AnyWidget();
    [[nodiscard]] QWidget* AnyOf(const char* className);
    [[nodiscard]] QPoint PointIn(const QWidget& widget);
    [[nodiscard]] QString AnyText();
    [[nodiscard]] QString AnyNumber();

    void Click();
    void ClickAside();
    void DoubleClick();
    void Drag();
    void Move();
    void Turn();
    void TypeText();
    void TypeNumber();
    void PressNavigation();
    void PressRepeatedly();
    void PressEnding();
    void PressCommand();
    void PressAlt();
    void PressFunction();
    void Compose();
    void Paste();
    void ChooseInList();
    void Activate();
    void Place();
    void SetState();
    void Close();
    void ActOutside();

    static const std::vector<Gesture> kGestures;

    std::mt19937 m_random;
    OutsideProgram m_outside;
    Hands m_hands;
    std::deque<MonkeyEvent> m_waiting;
};

} // namespace quillon::test
