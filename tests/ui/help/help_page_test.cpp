#include "ui/help/help_page.h"

#include "tests/support/application_font.h"
#include "tests/support/shown_window.h"
#include "tests/support/temp_folder.h"

#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextFrame>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quillon::ui {
namespace {

/// Three topics of forty lines each, numbered 1 to 3, and a word in each that stands nowhere else.
QString ThreeTopics()
{
    QString html = QStringLiteral("<p><a href=\"#2\">two</a> <a href=\"#9\">none</a></p>");
    int number = 1;
    for (const char* word : {"alpha", "beta", "gamma"}) {
        html += QStringLiteral("<h2><a name=\"%1\"></a>Topic %1</h2>").arg(number++);
        for (int line = 0; line < 40; ++line) {
            html += QStringLiteral("<p>%1</p>").arg(line == 20 ? QString::fromLatin1(word) : QStringLiteral("text"));
        }
    }
    return html;
}

class HelpPageTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        page.resize(400, 300);
        test::ShowActive(page);
        page.Show(html, 1);
    }

    /// What stands at the top of what is seen.
    std::string Top()
    {
        const int line = page.fontMetrics().height();
        return page.cursorForPosition({20, 3 * line / 2}).block().text().simplified().toStdString();
    }

    QString html = ThreeTopics();
    HelpPage page;
};

TEST_F(HelpPageTest, ShowsATopicWithItsHeadingAtTheTop)
{
    EXPECT_EQ(Top(), "Topic 1");
    page.Show(html, 3);
    EXPECT_EQ(Top(), "Topic 3");
}

TEST_F(HelpPageTest, AnotherDocumentBeginsANewHistory)
{
    const QSignalSpy history(&page, &HelpPage::HistoryChanged);
    page.GoTo(2);
    EXPECT_EQ(history.last(), (QVariantList{true, false}));
    page.Show(html + QStringLiteral("<p>more</p>"), 3);
    EXPECT_EQ(Top(), "Topic 3");
    EXPECT_EQ(history.last(), (QVariantList{false, false}));
    EXPECT_TRUE(page.toPlainText().endsWith(QStringLiteral("more")));
}

TEST_F(HelpPageTest, GoesBackToWhereOneReadAndForward)
{
    page.GoTo(2);
    page.verticalScrollBar()->setValue(page.verticalScrollBar()->value() + 200);
    const int place = page.verticalScrollBar()->value();
    page.GoTo(3);
    page.backward();
    EXPECT_NEAR(page.verticalScrollBar()->value(), place, 30);
    page.forward();
    EXPECT_EQ(Top(), "Topic 3");
    page.forward();
    EXPECT_EQ(Top(), "Topic 3") << "the end";
}

TEST_F(HelpPageTest, UnknownTopicIsTheTop)
{
    page.Show(QStringLiteral("<p>first</p>") + html, 77);
    EXPECT_EQ(page.verticalScrollBar()->value(), 0);
}

TEST_F(HelpPageTest, LinksAreFollowedByKeyboard)
{
    page.verticalScrollBar()->setValue(0);
    page.setFocus();
    QTest::keyClick(&page, Qt::Key_Tab);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(Top(), "Topic 2");
}

TEST_F(HelpPageTest, LinksOutLeadNowhere)
{
    page.GoTo(2);
    for (const char* link : {"http://quillon.example/#1", "file:///tmp/a.html", "other.html#1", "/document/x#1",
                             "mailto:a@b.example", "help:/other#1", ""}) {
        emit page.anchorClicked(QUrl(QString::fromLatin1(link)));
        EXPECT_EQ(Top(), "Topic 2") << link;
    }
    page.setSource(QUrl(QStringLiteral("file:///tmp/a.html")));
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("Topic 2")));
}

TEST_F(HelpPageTest, LoadsNothingFromOutside)
{
    const support::TempFolder folder;
    QImage picture(50, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString file = QString::fromStdString((folder / "a.png").string());
    ASSERT_TRUE(picture.save(file));
    const QString pipe = QString::fromStdString((folder / "pipe.png").string());
    ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);

    page.Show(QStringLiteral("<body background=\"%1\"><p>a<img src=\"%1\"><img src=\"file://%1\"><img src=\"%2\">"
                             "<img src=\"qrc:/a.png\"></p></body>")
                  .arg(file, pipe),
              1);
    page.grab();
    EXPECT_LT(page.document()->size().height(), 150);
    for (const QUrl& url : {QUrl(file), QUrl::fromLocalFile(file)}) {
        EXPECT_EQ(page.loadResource(QTextDocument::ImageResource, url).value<QImage>().size(), QSize(1, 1));
        EXPECT_EQ(page.loadResource(QTextDocument::StyleSheetResource, url).toByteArray().trimmed(), QByteArray());
    }
}

TEST_F(HelpPageTest, FindsTextFromWhereOneReads)
{
    page.GoTo(2);
    EXPECT_TRUE(page.FindText(QStringLiteral("TEXT"), {}));
    EXPECT_GT(page.textCursor().position(), 40 * 5) << "not at the top of the document";
    EXPECT_TRUE(page.FindText(QStringLiteral("gamma"), {}));
    EXPECT_EQ(page.textCursor().selectedText(), QStringLiteral("gamma"));
    EXPECT_NEAR(page.cursorRect().top(), page.viewport()->height() / 3.0, 2) << "with some lines around it";
}

TEST_F(HelpPageTest, FindsAroundTheEnds)
{
    page.GoTo(3);
    EXPECT_TRUE(page.FindText(QStringLiteral("alpha"), {}));
    EXPECT_TRUE(page.FindText(QStringLiteral("gamma"), QTextDocument::FindBackward));
    EXPECT_EQ(page.textCursor().selectedText(), QStringLiteral("gamma"));
}

TEST_F(HelpPageTest, FindsOnePlaceAfterTheOther)
{
    EXPECT_TRUE(page.FindText(QStringLiteral("topic"), {}));
    EXPECT_EQ(page.textCursor().block().text(), QStringLiteral("Topic 1"));
    EXPECT_TRUE(page.FindText(QStringLiteral("topic"), {}));
    EXPECT_EQ(page.textCursor().block().text(), QStringLiteral("Topic 2"));
    EXPECT_TRUE(page.FindText(QStringLiteral("topic"), QTextDocument::FindBackward));
    EXPECT_EQ(page.textCursor().block().text(), QStringLiteral("Topic 1"));
}

TEST_F(HelpPageTest, TextThatIsNowhereMovesNothing)
{
    page.GoTo(2);
    EXPECT_FALSE(page.FindText(QStringLiteral("delta"), {}));
    EXPECT_EQ(Top(), "Topic 2");
    EXPECT_TRUE(page.FindText(QString(), {}));
    EXPECT_EQ(Top(), "Topic 2");
}

TEST_F(HelpPageTest, ZoomsInTenthsWithinItsBounds)
{
    const double usual = page.font().pointSizeF();
    page.ZoomIn();
    EXPECT_NEAR(page.font().pointSizeF(), 1.1 * usual, 0.01);
    for (int step = 0; step < 60; ++step) {
        page.ZoomIn();
    }
    EXPECT_NEAR(page.font().pointSizeF(), 3.0 * usual, 0.01);
    for (int step = 0; step < 60; ++step) {
        page.ZoomOut();
    }
    EXPECT_NEAR(page.font().pointSizeF(), 0.5 * usual, 0.01);
    page.ZoomReset();
    EXPECT_NEAR(page.font().pointSizeF(), usual, 0.01);
}

TEST_F(HelpPageTest, WheelWithControlZooms)
{
    const double usual = page.font().pointSizeF();
    QWheelEvent event({10, 10}, page.viewport()->mapToGlobal(QPointF(10, 10)), {}, {0, 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(page.viewport(), &event);
    EXPECT_NEAR(page.font().pointSizeF(), 1.1 * usual, 0.01);
}

TEST_F(HelpPageTest, FollowsTheApplicationsFontWithItsZoom)
{
    const test::ApplicationFont font;
    page.ZoomIn();
    test::ApplicationFont::SetPointSize(20);
    EXPECT_NEAR(page.font().pointSizeF(), 22, 0.01);
}

TEST_F(HelpPageTest, KeepsItsPlaceWhenTheColoursChange)
{
    page.GoTo(3);
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Link, QColor(1, 200, 3));
    page.setPalette(dark);
    EXPECT_EQ(Top(), "Topic 3");
    const QTextBlock links = page.document()->begin();
    EXPECT_EQ(links.begin().fragment().charFormat().foreground().color(), QColor(1, 200, 3));
}

TEST_F(HelpPageTest, TextKeepsToAReadableWidth)
{
    page.resize(3000, 300);
    QApplication::processEvents();
    const QTextFrameFormat wide = page.document()->rootFrame()->frameFormat();
    EXPECT_GT(wide.leftMargin(), 500);
    EXPECT_EQ(wide.leftMargin(), wide.rightMargin());
    page.resize(300, 300);
    QApplication::processEvents();
    EXPECT_LT(page.document()->rootFrame()->frameFormat().leftMargin(), 20);
}

} // namespace
} // namespace quillon::ui
