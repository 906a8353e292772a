#include "tests/support/application_font.h"
#include "tests/support/shown_window.h"
#include "ui/widgets/spin_control.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStyle>
#include <QWheelEvent>

#include <string>

namespace quillon::ui {
namespace {

/// A spin control in a window, beside a text box that can take the focus.
class Spin : public testing::Test
{
protected:
    Spin()
    {
        auto* row = new QHBoxLayout(&m_window);
        row->addWidget(m_box);
        row->addWidget(m_spin);
        test::ShowActive(m_window);
    }

    void ClickUp() { QTest::mouseClick(m_spin, Qt::LeftButton, {}, m_spin->UpArrow().center()); }

    void ClickDown() { QTest::mouseClick(m_spin, Qt::LeftButton, {}, m_spin->DownArrow().center()); }

    bool Wheel(int turn)
    {
        QWheelEvent event(QPointF(3, 3), m_spin->mapToGlobal(QPointF(3, 3)), {}, {0, turn}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_spin, &event);
        return event.isAccepted();
    }

    QWidget m_window;
    QLineEdit* m_box = new QLineEdit(&m_window);
    SpinControl* m_spin = new SpinControl({-10, 1499, 1400, 10, 100}, SpinLook::Coarse, &m_window);
};

TEST_F(Spin, TakesItsStoredProperties)
{
    EXPECT_EQ(m_spin->minimum(), -10);
    EXPECT_EQ(m_spin->maximum(), 1499);
    EXPECT_EQ(m_spin->value(), 1400);
    EXPECT_EQ(m_spin->singleStep(), 10);
    EXPECT_EQ(m_spin->pageStep(), 100);
}

TEST_F(Spin, TheUpperArrowLowersThePosition)
{
    ClickUp();
    EXPECT_EQ(m_spin->value(), 1390);
}

TEST_F(Spin, TheLowerArrowRaisesThePosition)
{
    ClickDown();
    EXPECT_EQ(m_spin->value(), 1410);
}

TEST_F(Spin, AStepEndsAtTheRangesEnds)
{
    m_spin->setValue(-5);
    ClickUp();
    EXPECT_EQ(m_spin->value(), -10);
    m_spin->setValue(1495);
    ClickDown();
    EXPECT_EQ(m_spin->value(), 1499);
}

TEST_F(Spin, AtItsEndAClickTellsNothing)
{
    m_spin->setValue(-10);
    const QSignalSpy moved(m_spin, &SpinControl::valueChanged);
    ClickUp();
    EXPECT_EQ(moved.count(), 0);
}

TEST_F(Spin, OnlyTheLeftButtonMovesIt)
{
    QTest::mouseClick(m_spin, Qt::RightButton, {}, m_spin->UpArrow().center());
    EXPECT_EQ(m_spin->value(), 1400);
}

TEST_F(Spin, DisabledItStays)
{
    m_spin->setEnabled(false);
    ClickUp();
    EXPECT_EQ(m_spin->value(), 1400);
}

TEST_F(Spin, AHeldArrowRepeatsUntilItIsLetGo)
{
    QTest::mousePress(m_spin, Qt::LeftButton, {}, m_spin->UpArrow().center());
    EXPECT_EQ(m_spin->value(), 1390);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_spin->value() <= 1370; }));
    QTest::mouseRelease(m_spin, Qt::LeftButton, {}, m_spin->UpArrow().center());
    const int end = m_spin->value();
    QTest::qWait(2 * m_spin->style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate));
    EXPECT_EQ(m_spin->value(), end);
}

TEST_F(Spin, LosingTheFocusEndsTheRepeat)
{
    QTest::mousePress(m_spin, Qt::LeftButton, {}, m_spin->UpArrow().center());
    m_box->setFocus();
    QTest::qWait(m_spin->style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold) +
                 2 * m_spin->style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate));
    EXPECT_EQ(m_spin->value(), 1390);
}

struct KeyRow
{
    std::string name;
    Qt::Key key;
    int position;
};

void PrintTo(const KeyRow& row, std::ostream* out)
{
    *out << row.name;
}

class SpinKey : public Spin, public testing::WithParamInterface<KeyRow>
{
};

TEST_P(SpinKey, MovesTo)
{
    m_spin->setFocus();
    test::Click(m_window, GetParam().key);
    EXPECT_EQ(m_spin->value(), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Keys, SpinKey,
                         testing::Values(KeyRow{"Up lowers by the arrow step", Qt::Key_Up, 1390},
                                         KeyRow{"Down raises by the arrow step", Qt::Key_Down, 1410},
                                         KeyRow{"Page Up lowers by the page step", Qt::Key_PageUp, 1300},
                                         KeyRow{"Page Down raises by it, to the end", Qt::Key_PageDown, 1499},
                                         KeyRow{"Home goes to the lowest position", Qt::Key_Home, -10},
                                         KeyRow{"End goes to the highest position", Qt::Key_End, 1499},
                                         KeyRow{"Left does nothing", Qt::Key_Left, 1400},
                                         KeyRow{"digits do nothing", Qt::Key_5, 1400}));

TEST_F(Spin, TheWheelMovesItByTheArrowStepWhileItHasTheFocus)
{
    m_spin->setFocus();
    EXPECT_TRUE(Wheel(120));
    EXPECT_EQ(m_spin->value(), 1390);
    EXPECT_TRUE(Wheel(-240));
    EXPECT_EQ(m_spin->value(), 1410);
}

TEST_F(Spin, SmallTurnsOfTheWheelAddUp)
{
    m_spin->setFocus();
    Wheel(60);
    EXPECT_EQ(m_spin->value(), 1400);
    Wheel(60);
    EXPECT_EQ(m_spin->value(), 1390);
}

TEST_F(Spin, WithoutFocusTheWheelScrollsTheWindowInstead)
{
    m_box->setFocus();
    EXPECT_FALSE(Wheel(120));
    EXPECT_EQ(m_spin->value(), 1400);
}

TEST_F(Spin, TakesTheFocusByTabAndByClickButNotByWheel)
{
    EXPECT_EQ(m_spin->focusPolicy(), Qt::StrongFocus);
    m_box->setFocus();
    test::Click(m_window, Qt::Key_Tab);
    EXPECT_TRUE(m_spin->hasFocus());
}

TEST_F(Spin, IsASliderToScreenReaders)
{
    m_spin->setAccessibleName(QStringLiteral("System 1 power, coarse"));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(m_spin);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("System 1 power, coarse"));
    ASSERT_NE(spoken->valueInterface(), nullptr);
    EXPECT_EQ(spoken->valueInterface()->currentValue().toInt(), 1400);
}

TEST_F(Spin, TellsScreenReadersTheFigureThatItsPositionStandsFor)
{
    m_spin->SetFigure([](int position) { return 1500 - position; });
    QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(m_spin)->valueInterface();
    EXPECT_EQ(value->currentValue().toDouble(), 100);
    EXPECT_EQ(value->minimumValue().toDouble(), 1);
    EXPECT_EQ(value->maximumValue().toDouble(), 1510);
}

TEST_F(Spin, TellsScreenReadersAFigureWithoutTheRestOfItsSinglePrecision)
{
    m_spin->SetFigure([](int) { return 3.85F; });
    QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(m_spin)->valueInterface();
    EXPECT_EQ(value->currentValue().toDouble(), 3.85);
}

TEST_F(Spin, GoesToTheFigureThatAScreenReaderSets)
{
    m_spin->SetFigure([](int position) { return 1500 - position; });
    QAccessibleValueInterface* value = QAccessible::queryAccessibleInterface(m_spin)->valueInterface();
    value->setCurrentValue(250.4);
    EXPECT_EQ(m_spin->value(), 1250);
    value->setCurrentValue(9999);
    EXPECT_EQ(m_spin->value(), -10);
}

/// Number of strokes that a line down the middle of the upper arrow crosses.
int Chevrons(SpinLook look)
{
    SpinControl spin({0, 10, 5, 1, 1}, look);
    spin.resize(spin.sizeHint().width(), 2 * spin.sizeHint().height());
    const QImage image = spin.grab().toImage();
    const int ink = spin.palette().color(QPalette::ButtonText).lightness();
    const int panel = image.pixelColor(spin.width() / 5, spin.height() / 4).lightness();
    int strokes = 0;
    bool inStroke = false;
    for (int y = 2; y < spin.UpArrow().bottom() - 2; ++y) {
        const int here = image.pixelColor(spin.width() / 2, y).lightness();
        const bool stroke = std::abs(here - ink) < std::abs(here - panel);
        strokes += stroke && !inStroke ? 1 : 0;
        inStroke = stroke;
    }
    return strokes;
}

TEST_F(Spin, FineHasOneChevronAndCoarseTwo)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPixelSize(60);
    EXPECT_EQ(Chevrons(SpinLook::Fine), 1);
    EXPECT_EQ(Chevrons(SpinLook::Coarse), 2);
}

TEST_F(Spin, AnArrowAtItsEndIsDrawnFainter)
{
    SpinControl spin({0, 10, 5, 1, 1}, SpinLook::Fine);
    spin.resize(20, 30);
    const QImage between = spin.grab().toImage();
    spin.setValue(0);
    const QImage atEnd = spin.grab().toImage();
    EXPECT_NE(atEnd.copy(spin.UpArrow()), between.copy(spin.UpArrow()));
    EXPECT_EQ(atEnd.copy(spin.DownArrow()), between.copy(spin.DownArrow()));
}

TEST_F(Spin, TheHalvesCoverItWithoutOverlap)
{
    EXPECT_FALSE(m_spin->UpArrow().intersects(m_spin->DownArrow()));
    EXPECT_EQ(m_spin->UpArrow().united(m_spin->DownArrow()), m_spin->rect());
}

} // namespace
} // namespace quillon::ui
