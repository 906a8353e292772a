#include "ui/widgets/looks.h"
#include "ui/widgets/quillon_style.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QStyleOptionFrame>

#include <memory>

namespace quillon::ui {
namespace {

QPalette Dark()
{
    QPalette palette(QColor(64, 69, 74), QColor(42, 46, 50));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(252, 252, 252));
    }
    return palette;
}

class Styled : public testing::Test
{
protected:
    void Dress(QWidget& widget)
    {
        widget.setStyle(&m_style);
        widget.setPalette(Dark());
        widget.resize(120, 30);
    }

    /// Colour of the outline in the middle of the upper edge.
    static QColor Outline(QWidget& widget)
    {
        const QImage image = widget.grab().toImage();
        return image.pixelColor(image.width() / 3, 0);
    }

    QuillonStyle m_style{QStyleFactory::create(QStringLiteral("fusion"))};
};

TEST_F(Styled, AnEmptyBoxIsSeenInADarkPalette)
{
    QLineEdit box;
    Dress(box);
    EXPECT_GE(Contrast(Outline(box), Dark().color(QPalette::Window)), 3.0);
}

TEST_F(Styled, AListHasTheSameOutlineAsABoxSoItIsNotTreatedTwice)
{
    QLineEdit box;
    QComboBox list;
    list.setEditable(true);
    Dress(box);
    Dress(list);
    EXPECT_EQ(Outline(list), Outline(box));
}

TEST_F(Styled, ADisabledBoxKeepsItsOutlineOnTheWindowsColour)
{
    QLineEdit box;
    Dress(box);
    const QColor enabled = Outline(box);
    box.setEnabled(false);
    EXPECT_EQ(Outline(box), enabled);
    EXPECT_EQ(box.grab().toImage().pixelColor(60, 15), Dark().color(QPalette::Disabled, QPalette::Window));
}

TEST_F(Styled, AnEnabledListDrawnAfterADisabledOneLooksEnabled)
{
    QComboBox first;
    QComboBox second;
    QComboBox alone;
    for (QComboBox* list : {&first, &second, &alone}) {
        list->addItem(QStringLiteral("BELDEN"));
        Dress(*list);
    }
    const QImage expected = alone.grab().toImage();
    first.setEnabled(false);
    first.grab();
    EXPECT_EQ(second.grab().toImage(), expected);
}

TEST_F(Styled, ReadOnlyBoxesHaveAHairline)
{
    QLineEdit box;
    Dress(box);
    const double live = Contrast(Outline(box), Dark().color(QPalette::Window));
    box.setReadOnly(true);
    EXPECT_LT(Contrast(Outline(box), Dark().color(QPalette::Window)), live - 1);
}

TEST_F(Styled, PaintingAgainPutsNothingNewIntoThePixmapCache)
{
    // The style asks the cache by the palette's key: one palette, one picture.
    QStyleOptionComboBox option;
    QComboBox list;
    Dress(list);
    list.grab();
    const QPalette palette = list.palette();

    struct Recorder : QProxyStyle
    {
        using QProxyStyle::QProxyStyle;

        void drawComplexControl(ComplexControl, const QStyleOptionComplex* drawn, QPainter*,
                                const QWidget*) const override
        {
            keys.append(drawn->palette.cacheKey());
        }

        mutable QList<qint64> keys;
    };

    auto* recorder = new Recorder(QStyleFactory::create(QStringLiteral("fusion")));
    QuillonStyle style(recorder);
    list.setStyle(&style);
    list.grab();
    list.grab();
    ASSERT_EQ(recorder->keys.size(), 2);
    EXPECT_EQ(recorder->keys[0], recorder->keys[1]);
    EXPECT_NE(recorder->keys[0], palette.cacheKey());
    list.setStyle(nullptr);
}

TEST_F(Styled, UncheckedCheckBoxesAreSeen)
{
    QCheckBox box;
    Dress(box);
    const QImage image = box.grab().toImage();
    double best = 1;
    for (int x = 0; x < 24; ++x) {
        best = std::max(best, Contrast(image.pixelColor(x, 15), Dark().color(QPalette::Window)));
    }
    EXPECT_GE(best, 3.0);
}

TEST_F(Styled, OutlinesOfCheckBoxesAndOptionsAreSeenInALightPaletteToo)
{
    QCheckBox box;
    QRadioButton option;
    for (QWidget* widget : std::initializer_list<QWidget*>{&box, &option}) {
        Dress(*widget);
        widget->setPalette(QPalette(QColor(239, 239, 239)));
        const QImage image = widget->grab().toImage();
        double best = 1;
        for (int x = 0; x < 10; ++x) {
            best = std::max(best, Contrast(image.pixelColor(x, 15), QColor(239, 239, 239)));
        }
        EXPECT_GE(best, 3.0) << widget->metaObject()->className();
    }
}

TEST_F(Styled, SelectedTextIsReadable)
{
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    m_style.polish(palette);
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
}

TEST_F(Styled, TheFrameOfADocumentShowsThatItHasTheKeyboard)
{
    QPlainTextEdit notes;
    Dress(notes);
    const QColor without = Outline(notes);
    QStyleOptionFrame option;
    option.initFrom(&notes);
    option.lineWidth = 1;
    option.state |= QStyle::State_HasFocus;
    QImage image(notes.size(), QImage::Format_RGB32);
    image.fill(Dark().color(QPalette::Window));
    QPainter painter(&image);
    m_style.drawPrimitive(QStyle::PE_Frame, &option, &painter, &notes);
    EXPECT_NE(image.pixelColor(40, 0), without);
    EXPECT_GE(Contrast(image.pixelColor(40, 0), Dark().color(QPalette::Window)), 3.0);
}

TEST(QuillonStyle, ButtonsOfMessageBoxesHaveNoIconsAsAllOthers)
{
    QuillonStyle style(QStyleFactory::create(QStringLiteral("fusion")));
    QMessageBox box;
    for (QWidget* part : box.findChildren<QWidget*>()) {
        part->setStyle(&style);
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    box.ensurePolished();
    for (const QAbstractButton* button : box.buttons()) {
        EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
    }
}

} // namespace
} // namespace quillon::ui
