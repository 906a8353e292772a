#include "tests/reliability/monkey_gestures.h"

#include <QApplication>

#include <numeric>

namespace quillon::test {

namespace {

/// Texts that number boxes and names may stumble over.
const QStringList kTexts{
    QStringLiteral("<b>bold</b>"), QStringLiteral("<img src=x>"), QStringLiteral("A & B && C"),
    QStringLiteral("..\\..//"),    QStringLiteral("\"quoted\""),  QStringLiteral("[section]"),
    QStringLiteral("key=value"),   QStringLiteral("a|b|c"),       QStringLiteral("ÄÖÜ ß é"),
    QStringLiteral("中文"),        QStringLiteral("Жук"),         QStringLiteral("\u202Eidib"),
    QStringLiteral("\u200B"),      QStringLiteral("💥"),           QStringLiteral("%1 %n %s"),
    QStringLiteral("\tx\n"),       QStringLiteral("CON"),         QStringLiteral("."),
    QStringLiteral("MODEL "),      QStringLiteral(";"),
};
const QStringList kNumbers{
    QStringLiteral("0"),
    QStringLiteral("-1"),
    QStringLiteral("1e38"),
    QStringLiteral("1e-38"),
    QStringLiteral("999999999"),
    QStringLiteral("3.4e39"),
    QStringLiteral("nan"),
    QStringLiteral("inf"),
    QStringLiteral("1.2.3"),
    QStringLiteral("--5-"),
    QStringLiteral("1500.5"),
    QStringLiteral("1501"),
    QStringLiteral("32767"),
    QStringLiteral("-32769"),
    QStringLiteral("0x10"),
    QStringLiteral("1,5"),
    QStringLiteral(".5"),
    QStringLiteral("5."),
    QStringLiteral("  7 "),
    QStringLiteral("٣"),
    QStringLiteral("0.0001"),
    QStringLiteral("-0"),
    QStringLiteral("1234567890123456789012345678901234567890"),
};

} // namespace

QString NameOf(const QWidget& widget)
{
    const QString name = widget.objectName().isEmpty() && widget.parentWidget() != nullptr
                             ? widget.parentWidget()->objectName() + u'>'
                             : widget.objectName();
    return QString::fromLatin1(widget.metaObject()->className()).section(QStringLiteral("::"), -1) + u' ' + name;
}

const std::vector<Gestures::Gesture> Gestures::kGestures{
    {260, &Gestures::Click},
    {25, &Gestures::ClickAside},
    {20, &Gestures::DoubleClick},
    {25, &Gestures::Drag},
    {40, &Gestures::Move},
    {60, &Gestures::Turn},
    {100, &Gestures::TypeText},
    {80, &Gestures::TypeNumber},
    {160, &Gestures::PressNavigation},
    {20, &Gestures::PressRepeatedly},
    {120, &Gestures::PressEnding},
    {30, &Gestures::PressCommand},
    {30, &Gestures::PressAlt},
    {20, &Gestures::PressFunction},
    {10, &Gestures::Compose},
    {10, &Gestures::Paste},
    {60, &Gestures::ChooseInList},
    {10, &Gestures::Activate},
    {8, &Gestures::Place},
    {2, &Gestures::SetState},
    {2, &Gestures::Close},
    {1, &Gestures::ActOutside},
};

Gestures::Gestures(unsigned seed, OutsideProgram outside)
    : m_random(seed)
    , m_outside(std::move(outside))
{
}

MonkeyEvent Gestures::Next()
{
    while (m_waiting.empty()) {
        Begin();
    }
    MonkeyEvent event = std::move(m_waiting.front());
    m_waiting.pop_front();
    return event;
}

void Gestures::Begin()
{
    if (Window() == nullptr) {
        Add("waits for a window", [] {});
        return;
    }
    static const unsigned kAll =
        std::accumulate(kGestures.begin(), kGestures.end(), 0U,
                        [](unsigned sum, const Gesture& gesture) { return sum + gesture.weight; });
    unsigned place = static_cast<unsigned>(m_random()) % kAll;
    for (const Gesture& gesture : kGestures) {
        if (place < gesture.weight) {
            (this->*gesture.begin)();
            return;
        }
        place -= gesture.weight;
    }
}

void Gestures::Add(std::string what, std::function<void()> deliver)
{
    m_waiting.push_back({std::move(what), std::move(deliver)});
}

void Gestures::AddKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    const std::string name = std::to_string(static_cast<int>(key)) + " \"" + text.toStdString() + "\" with " +
                             std::to_string(static_cast<unsigned>(modifiers.toInt()) >> 25U);
    Add("presses key " + name, [=, this] { m_hands.PressKey(key, text, modifiers); });
    Add("releases key " + name, [=, this] { m_hands.ReleaseKey(key, text, modifiers); });
}

void Gestures::AddText(const QString& text)
{
    for (const char32_t code : text.toUcs4()) {
        AddKey(static_cast<Qt::Key>(code < 0x10000 ? QChar(static_cast<char16_t>(code)).toUpper().unicode() : 0),
               QString::fromUcs4(&code, 1));
    }
}

void Gestures::AddClick(QWidget* widget, QPoint point, Qt::MouseButton button)
{
    const QPointer<QWindow> window(widget->window()->windowHandle());
    const QPoint local = widget->mapTo(widget->window(), point);
    const std::string where =
        NameOf(*widget).toStdString() + " at " + std::to_string(local.x()) + "," + std::to_string(local.y());
    Add("presses button " + std::to_string(button) + " on " + where, [=, this] {
        if (window != nullptr && window->isVisible()) {
            m_hands.PressButton(window, local, button);
        }
    });
    Add("releases it", [=, this] { m_hands.ReleaseButton(window, local, button); });
}

QWidget* Gestures::Window()
{
    QWidget* front = FrontWindow();
    if (front != nullptr && !Happens(12)) {
        return front;
    }
    QWidgetList shown;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowHandle() != nullptr && window->windowType() != Qt::ToolTip) {
            shown.append(window);
        }
    }
    return shown.isEmpty() ? nullptr : OneOf(shown, m_random);
}

QWidget* Gestures::AnyWidget()
{
    return AnyOf("QWidget");
}

QWidget* Gestures::AnyOf(const char* className)
{
    QWidget* window = Window();
    if (window == nullptr || window->windowHandle() == nullptr) {
        return nullptr;
    }
    QWidgetList found;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->window() == window && widget->isVisible() && widget->inherits(className)) {
            found.append(widget);
        }
    }
    return found.isEmpty() ? window : OneOf(found, m_random);
}

QPoint Gestures::PointIn(const QWidget& widget)
{
    return {Below(std::max(1, widget.width())), Below(std::max(1, widget.height()))};
}

QString Gestures::AnyText()
{
    if (Happens(3)) {
        return OneOf(kTexts, m_random);
    }
    QString text;
    for (int count = 1 + Below(4); count > 0; --count) {
        text += QChar(static_cast<char16_t>(Happens(6) ? 0xA0 + Below(0x300) : 0x20 + Below(95)));
    }
    return text;
}

QString Gestures::AnyNumber()
{
    if (Happens(3)) {
        return OneOf(kNumbers, m_random);
    }
    const QString whole = QString::number(Below(Happens(2) ? 40 : 3000));
    return Happens(2) ? whole : whole + (Happens(8) ? u',' : u'.') + QString::number(Below(100));
}

} // namespace quillon::test
