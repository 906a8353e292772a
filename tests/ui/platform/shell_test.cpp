#include "ui/platform/shell.h"

#include "tests/support/temp_folder.h"
#include "ui/platform/addresses.h"

#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace quillon::ui {
namespace {

/// Programs that note how they were started, in the only folder that programs are looked for in.
class ShellTest : public ::testing::Test
{
protected:
    ShellTest() { qputenv("PATH", QByteArray::fromStdString(m_programs.Path().string())); }

    ~ShellTest() override { qputenv("PATH", m_pathBefore); }

    /// Installs a program that notes its name, its arguments, each in brackets, and where it works.
    void Install(const std::string& name)
    {
        const std::string record = (m_records / "started").string();
        const std::filesystem::path program = m_programs.Put(
            name,
            "#!/bin/sh\n"
            "{ printf '%s' \"${0##*/}\"; for each; do printf ' [%s]' \"$each\"; done; printf ' in %s' \"$PWD\"; } >'" +
                record +
                ".new'\n"
                "/bin/mv '" +
                record + ".new' '" + record + "'\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    /// Waits for a program to have been started. @return what it noted, empty when none starts.
    std::string Started()
    {
        static_cast<void>(QTest::qWaitFor([this] { return m_records.Get("started").has_value(); }));
        const std::string noted = m_records.Get("started").value_or("");
        std::filesystem::remove(m_records / "started");
        return noted;
    }

    DesktopShell shell;

private:
    const QByteArray m_pathBefore = qgetenv("PATH");
    support::TempFolder m_programs;
    support::TempFolder m_records;
};

TEST_F(ShellTest, ACalculatorIsStartedWithoutArgumentsEachBeforeThoseBehindIt)
{
    const std::string here = " in " + std::filesystem::current_path().string();
    for (const char* name : {"xcalc", "mate-calc", "qalculate-gtk", "galculator", "kcalc", "gnome-calculator"}) {
        Install(name);
        shell.StartCalculator();
        EXPECT_EQ(Started(), name + here) << "where all behind it are installed as well";
    }
}

TEST_F(ShellTest, WhatIsNotInstalledIsNotReported)
{
    Install("calc");
    shell.StartCalculator();
    shell.Open(QUrl(kProductPage.toString()));

    // Whatever had been started before this one would be there by now.
    Install("xcalc");
    shell.StartCalculator();
    EXPECT_THAT(Started(), ::testing::StartsWith("xcalc"));
}

TEST_F(ShellTest, AWebPageIsOneArgument)
{
    Install("xdg-open");
    shell.Open(QUrl(kProductPage.toString()));
    EXPECT_EQ(Started(), "xdg-open [https://quillon.example/] in /");
}

TEST_F(ShellTest, NothingInAMailAddressBecomesASecondArgument)
{
    Install("xdg-open");
    shell.Open(QUrl(QStringLiteral("mailto:a@b.example?subject=one%20two%22%27%3B%60id%60$(id)&Body=Hello,")));
    EXPECT_EQ(Started(), "xdg-open [mailto:a@b.example?subject=one%20two%22%27%3B%60id%60$(id)&Body=Hello,] in /");
}

} // namespace
} // namespace quillon::ui
