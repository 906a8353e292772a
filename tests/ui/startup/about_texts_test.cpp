#include "ui/startup/about_texts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QUrlQuery>

namespace quillon::ui {
namespace {

const ProgramInfo kProgram{QStringLiteral("Quillon"), QVersionNumber(1, 0, 0), QStringLiteral("/opt/Quillon")};
const SystemInfo kSystem{1, QStringLiteral("Windows 98"), QStringLiteral("4.10"), QStringLiteral(" A "),
                         QStringLiteral("67766446")};
const SystemInfo kUnknown{};

std::string Encoded(const QUrl& address)
{
    return address.toEncoded().toStdString();
}

TEST(AboutTexts, VersionLineHasABlankBeforeTheRevisionAsGiven)
{
    EXPECT_EQ(VersionLine(kProgram, kSystem), QStringLiteral("Quillon, Version 1.0 0, for Windows 98"));
    EXPECT_EQ(VersionLine({QStringLiteral("Other"), QVersionNumber(12, 3, 45), {}}, kSystem),
              QStringLiteral("Other, Version 12.3 45, for Windows 98"));
}

TEST(AboutTexts, SystemLine)
{
    EXPECT_EQ(SystemLine(kSystem), QStringLiteral("Running on Windows 98 4.10 Build 67766446 ( A )"));
}

TEST(AboutTexts, AnEmptyServicePackLeavesAnEmptyPairOfBracketsAsGiven)
{
    SystemInfo system = kSystem;
    system.ServicePack.clear();
    EXPECT_EQ(SystemLine(system), QStringLiteral("Running on Windows 98 4.10 Build 67766446 ()"));
}

TEST(AboutTexts, LinesAreBuiltOfAnUnknownSystemAllTheSame)
{
    EXPECT_EQ(VersionLine(kProgram, kUnknown), QStringLiteral("Quillon, Version 1.0 0, for "));
    EXPECT_EQ(SystemLine(kUnknown), QStringLiteral("Running on   Build  ()"));
}

TEST(AboutTexts, MailHasNoBody)
{
    EXPECT_EQ(Encoded(MailAddress(kProgram, kSystem)),
              "mailto:quillon@tarvel.example?subject=Quillon%2C%20Version%201.0%200%2C%20Running%20on%20Windows%2098%20"
              "4.10%20Build%2067766446%20%28%20A%20%29");
}

TEST(AboutTexts, CommentsDifferInSubjectAndBodyAsGiven)
{
    EXPECT_EQ(
        Encoded(CommentsAddress(kProgram, kSystem)),
        "mailto:quillon@tarvel.example?subject=Comments%20on%20Quillon%2C%20Version%201.0%200%2C%20Running%20on%20"
        "Windows%2098%204.10%20Build%2067766446%20%28%20A%20%29&Body=Hello%2C");
}

TEST(AboutTexts, NoTextBreaksOutOfTheSubject)
{
    SystemInfo system = kSystem;
    system.Name = QStringLiteral("a&Body=b?c#d+e%20f\"g'h\r\nBcc: i@j;k`l`$(m)\u00e4");
    for (const QUrl& address : {MailAddress(kProgram, system), CommentsAddress(kProgram, system)}) {
        const std::string encoded = Encoded(address);
        EXPECT_NE(encoded.find("a%26Body%3Db%3Fc%23d%2Be%2520f%22g%27h%0D%0ABcc%3A%20i%40j%3Bk%60l%60%24%28m%29%C3%A4"),
                  std::string::npos)
            << encoded;
        EXPECT_FALSE(address.hasFragment());
        EXPECT_TRUE(
            QUrlQuery(address).queryItemValue(QStringLiteral("subject"), QUrl::FullyDecoded).contains(system.Name));
    }
    EXPECT_EQ(QUrlQuery(MailAddress(kProgram, system)).queryItems().size(), 1);
    EXPECT_EQ(QUrlQuery(CommentsAddress(kProgram, system)).queryItems().size(), 2);
}

TEST(AboutTexts, TheRunningProgramIsWhatTheApplicationSaysItIs)
{
    const QString name = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(QStringLiteral("Some name"));
    QCoreApplication::setApplicationVersion(QStringLiteral("4.5.6"));
    const ProgramInfo program = ProgramInfo::OfThisProgram();
    QCoreApplication::setApplicationName(name);
    QCoreApplication::setApplicationVersion(QString());

    EXPECT_EQ(program.title, QStringLiteral("Some name"));
    EXPECT_EQ(program.version, QVersionNumber(4, 5, 6));
    EXPECT_TRUE(program.path.endsWith(QStringLiteral("/quillon_startup_tests"))) << program.path.toStdString();
}

} // namespace
} // namespace quillon::ui
