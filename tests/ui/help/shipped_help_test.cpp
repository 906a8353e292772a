#include "tests/ui/help/shipped_help.h"
#include "ui/help/help_document.h"
#include "ui/help/help_topics.h"
#include "ui/main/commands.h"

#include <QSet>

#include <gmock/gmock.h>

namespace quillon::ui {
namespace {

class ShippedHelpTest : public ::testing::Test
{
protected:
    const QString html = test::ShippedHelp();
    const QStringList anchors = test::AttributeValues(html, QStringLiteral("a"), QStringLiteral("name"));
    const QStringList links = test::AttributeValues(html, QStringLiteral("a"), QStringLiteral("href"));
};

TEST_F(ShippedHelpTest, CanBeShown)
{
    EXPECT_EQ(ReadHelpDocument(test::ShippedHelpFile()), html);
}

TEST_F(ShippedHelpTest, OpensAtItsTop)
{
    ASSERT_FALSE(anchors.isEmpty());
    EXPECT_EQ(anchors.first(), QStringLiteral("15000"));
    EXPECT_EQ(kHelpOverview, 15000);
}

TEST_F(ShippedHelpTest, EveryWindowHasItsTopic)
{
    for (const char* form : {"Quillon", "SaveSystem", "LoadSystem", "PrintOut", "PrintSystemReport", "EditAntennas",
                             "ShowTable", "Splash", "About", "HelpWindow"}) {
        const auto topic = FindHelpTopic(form);
        ASSERT_TRUE(topic) << form;
        EXPECT_EQ(anchors.count(QString::number(topic->context)), 1) << form << ": " << topic->context;
    }
    EXPECT_FALSE(FindHelpTopic("Another"));
}

TEST_F(ShippedHelpTest, NoTwoTopicsShareANumber)
{
    EXPECT_EQ(QSet<QString>(anchors.begin(), anchors.end()).size(), anchors.size());
    QSet<int> contexts;
    for (const HelpTopic& topic : kHelpTopics) {
        contexts.insert(topic.context);
    }
    EXPECT_EQ(contexts.size(), static_cast<qsizetype>(kHelpTopics.size()));
}

TEST_F(ShippedHelpTest, NoLinkIsDeadOrLeadsOut)
{
    ASSERT_GT(links.size(), 50);
    for (const QString& link : links) {
        EXPECT_TRUE(link.startsWith(u'#')) << link.toStdString();
        EXPECT_TRUE(anchors.contains(link.mid(1))) << link.toStdString();
    }
    EXPECT_EQ(html.count(QStringLiteral("href")), links.size()) << "one that is written in another way";
}

TEST_F(ShippedHelpTest, ContentsLeadToEveryTopic)
{
    const QString contents = html.left(html.indexOf(QStringLiteral("<h2>")));
    const QStringList listed = test::AttributeValues(contents, QStringLiteral("a"), QStringLiteral("href"));
    for (const QString& anchor : anchors.mid(1)) {
        EXPECT_TRUE(listed.contains(u'#' + anchor)) << anchor.toStdString();
    }
}

TEST_F(ShippedHelpTest, EveryTopicLeadsBackToTheContents)
{
    // The opening window and About are short and share one link with the help's own topic.
    const QStringList topics = html.split(QStringLiteral("<h2>")).mid(1);
    for (const QString& topic : topics) {
        const bool isShort = topic.contains(QStringLiteral("15600")) || topic.contains(QStringLiteral("15610"));
        EXPECT_TRUE(isShort || topic.contains(QStringLiteral("<p><a href=\"#15000\">Contents</a></p>")))
            << topic.left(60).toStdString();
    }
}

TEST_F(ShippedHelpTest, NeedsNothingFromOutside)
{
    for (const char* text : {"src=", "<img", "<link", "<style", "<script", "url(", "http", "file:", "@import"}) {
        EXPECT_FALSE(html.contains(QString::fromLatin1(text), Qt::CaseInsensitive)) << text;
    }
}

TEST_F(ShippedHelpTest, IsWrittenInPlainCharacters)
{
    for (const QChar character : html) {
        EXPECT_TRUE(character == u'\n' || (character >= u' ' && character <= u'~')) << int{character.unicode()};
    }
}

TEST_F(ShippedHelpTest, EveryElementIsClosed)
{
    for (const char* name : {"h1", "h2", "h3", "p", "ul", "ol", "li", "table", "tr", "td", "th", "a", "b", "pre"}) {
        const QString element = QString::fromLatin1(name);
        const qsizetype opened = html.count(u'<' + element + u'>') + html.count(u'<' + element + u' ');
        EXPECT_EQ(opened, html.count(QStringLiteral("</") + element + u'>')) << name;
    }
}

// What stands on buttons, menus, frames and fields, without the marks of access keys, and what the messages say.
const char* const kCaptions[] = {
    "ERP / Attenuation Calculator", "System 1 Xmit Pwr", "System 2 Xmit Pwr", "System 1 Xmit Freq",
    "System 2 Xmit Freq", "Transmit Frequency in Mhz", "System 1 VSWR", "System 2 VSWR",
    "Choose Brand & Model of System 1 Antenna", "Choose Brand & Type of System 1 Coax", "System 1 Coax data",
    "System 2 Coax data", "Coax Length in '", "# of Connectors", "Coax dB Loss/100 Ft", "Antenna Gain in dB",
    "\"User Data\"", "\"Coax Data\"", "\"Antenna Data\"",
    "System #1--- Antenna System Performance Calculations--- System #2", "SWR Power Attenuation",
    "SWR Attenuation in dB", "Coax Loss in dB", "Coax Power Loss", "Antenna Gain in dBd", "Antenna Power Gain",
    "Antenna System Gain in dB", "Antenna Feedpoint Power", "Antenna System ERP", "Please Enter Only Numbers!",
    // Buttons and menus.
    "Save System", "Load System", "Calculator", "Close", "Edit Antennas", "Show Table", "Print Report",
    "Program, Show db Table", "Program, Load System", "Program, Save System", "Program, Print System",
    "Program, Calculator", "Program, Exit", "Links, Quillon Online", "Links, Tarvel Software", "Help, About",
    "Help, Help Overview", "Send E-Mail", "A system has been configured. Do you want to save it?",
    // Saving and loading.
    "Save Current Antenna System", "Enter a Name for the Antenna Systems", "Antenna System One", "Antenna System Two",
    "There is no system configured to save!", "System Name is Empty! Please Create a System and Try Again.",
    "The Selected System Already Exists. Do You Want to Update it?", "Load an Antenna System",
    "Select an Antenna System", "Data File Missing", "Can't write more than 255 characters for key or value.",
    // Printing.
    "Select Printer from list below.", "Select Font from list below.", "Enter any notes for this report.", "Print",
    "Stop", "Cancel", "Finish", "Printer Error", "Antenna System Comparison Report", "Antenna System Comparison",
    "Notes:", "Calc Error", "Antenna Brand", "Antenna Model", "Coax Cable Brand", "Coax Cable Type", "Antenna Gain dBd",
    "Feedpoint Power", "Coax Loss / 100 Ft", "Coax Cable Length", "Coax Loss dB", "Transmit Frequency",
    "Transmit Power", "SWR Value", "SWR Attenuation W", "SWR Attenuation dB",
    "Quillon is a demonstration tool only and should not be used to make purchasing decisions.",
    // The editor.
    "Manage Antenna Database", "Make Antenna Brand & Model Selections", "1: Select an Antenna Manufacturer",
    "2: Select an Antenna Model", "3: Click Edit, Make Changes, Then Click Save", "Add New Brand", "Add New Model",
    "Edit Selection", "Save Changes", "Edit Data Fields", "Select Bands of Operation", "Gain Figure", "Gain in dBd",
    "Gain in dBi", "Number of Entries", "Date File Created", "Date Last Modified", "75 Meters",
    "Add Gain Figure For This Band?", "Remove Gain Figure For This Band?", "already exists. Overwrite it?",
    "Already Exists! Replace it?",
    // The dB table.
    "dB Calculation Table", "Gain Coefficient", "Loss Coefficient", "Scroll Up", "Scroll Down",
    // The help.
    "Back", "Forward", "Contents", "Find", "Alt+Left", "Alt+Right", "Ctrl+F", "F3"};

TEST_F(ShippedHelpTest, NamesEveryCaption)
{
    const QString text = test::ReadText(html);
    for (const char* caption : kCaptions) {
        EXPECT_TRUE(text.contains(QString::fromLatin1(caption))) << caption;
    }
}

TEST_F(ShippedHelpTest, NamesEveryButtonAndItsKey)
{
    const QString text =
        test::ReadText(test::ElementOfClass(html, QStringLiteral("table"), QStringLiteral("commands")));
    for (const CommandButton& button : kCommandButtons) {
        EXPECT_TRUE(text.contains(QString::fromLatin1(button.caption).remove(u'&'))) << button.caption;
        EXPECT_TRUE(text.contains(QString::fromLatin1(button.shortcut))) << button.caption;
    }
}

TEST_F(ShippedHelpTest, NamesEveryMenuEntryWithItsKeys)
{
    const QString text =
        test::ReadText(test::ElementOfClass(html, QStringLiteral("table"), QStringLiteral("commands")));
    for (const Menu& menu : kMenus) {
        for (const MenuEntry& entry : menu.entries) {
            if (entry.caption == nullptr) {
                continue;
            }
            const QString keys =
                QString::fromLatin1(entry.shortcuts).replace(QStringLiteral("; "), QStringLiteral(", "));
            const QString named = QStringLiteral("%1, %2; %3")
                                      .arg(QString::fromLatin1(menu.caption), QString::fromLatin1(entry.caption), keys);
            EXPECT_TRUE(text.contains(QString(named).remove(u'&'))) << named.toStdString();
        }
    }
}

} // namespace
} // namespace quillon::ui
