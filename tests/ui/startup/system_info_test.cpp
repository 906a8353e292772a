#include "ui/startup/system_info.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <QString>

#include <optional>

namespace quillon::ui {
namespace {

SystemVersionCall Answer(const SystemVersion& version)
{
    return [version] { return version; };
}

struct NameRow
{
    const char* name;
    std::int32_t platform;
    int major;
    int minor;
    const char* shown;
    const char* version;
};

class SystemName : public ::testing::TestWithParam<NameRow>
{
};

TEST_P(SystemName, FollowsPlatformAndMinorVersion)
{
    const NameRow& row = GetParam();
    const SystemInfo info = FillSystemInfo(Answer({row.platform, QString(), row.major, row.minor, {}, {}}));
    EXPECT_EQ(info.Platform, row.platform);
    EXPECT_EQ(info.Name.toStdString(), row.shown);
    EXPECT_EQ(info.Version.toStdString(), row.version);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SystemName,
    ::testing::Values(NameRow{"platform 0", 0, 3, 11, "Win32s", "3.11"},
                      NameRow{"platform 0 whatever the minor version", 0, 3, 90, "Win32s", "3.90"},
                      NameRow{"platform 1 minor 0", 1, 4, 0, "Windows 95", "4.0"},
                      NameRow{"platform 1 minor 10 keeps its zero", 1, 4, 10, "Windows 98", "4.10"},
                      NameRow{"platform 1 minor 1 is neither 10 nor 0", 1, 4, 1, "Windows 98", "4.1"},
                      NameRow{"platform 1 minor 89", 1, 4, 89, "Windows 98", "4.89"},
                      NameRow{"platform 1 minor 90", 1, 4, 90, "Windows ME", "4.90"},
                      NameRow{"platform 1 minor 91 is 98 again as given", 1, 4, 91, "Windows 98", "4.91"},
                      NameRow{"platform 1 the major version does not count as given", 1, 5, 0, "Windows 95", "5.0"},
                      NameRow{"platform 2", 2, 4, 0, "Windows NT", "4.0"},
                      NameRow{"platform 2 later ones too as given", 2, 6, 90, "Windows NT", "6.90"},
                      NameRow{"platform 3 has no name", 3, 4, 10, "", "4.10"},
                      NameRow{"platform below all has no name", -1, 4, 0, "", "4.0"}),
    support::RowName());

TEST(SystemInfo, ASystemOutsideThePlatformsHasTheNameThatItGives)
{
    const SystemInfo info = FillSystemInfo(
        Answer({SystemVersion::kUnnumbered, QStringLiteral("Debian GNU/Linux"), 6, 1, QStringLiteral("6.1.0-28"), {}}));
    EXPECT_EQ(info.Name, QStringLiteral("Debian GNU/Linux"));
    EXPECT_EQ(info.Version, QStringLiteral("6.1"));
}

TEST(SystemInfo, OnTheNumberedPlatformsTheNumberNames)
{
    EXPECT_EQ(FillSystemInfo(Answer({2, QStringLiteral("another"), 4, 0, {}, {}})).Name, QStringLiteral("Windows NT"));
}

TEST(SystemInfo, TheBuildIsAsTheSystemReportsItUnmasked)
{
    // 4.10 build 2222 comes as 0x040A08AE.
    EXPECT_EQ(FillSystemInfo(Answer({1, {}, 4, 10, QStringLiteral("67766446"), {}})).Build, QStringLiteral("67766446"));
}

struct ServicePackRow
{
    const char* name;
    QString read;
    QString kept;
};

class ServicePack : public ::testing::TestWithParam<ServicePackRow>
{
};

TEST_P(ServicePack, EndsAtItsFirstNul)
{
    EXPECT_EQ(FillSystemInfo(Answer({2, {}, 4, 0, {}, GetParam().read})).ServicePack, GetParam().kept);
}

INSTANTIATE_TEST_SUITE_P(Rows, ServicePack,
                         ::testing::Values(ServicePackRow{"a NUL behind the text",
                                                          QStringLiteral("Service Pack 6\0\0\0"),
                                                          QStringLiteral("Service Pack 6")},
                                           ServicePackRow{"what stands behind the NUL goes",
                                                          QStringLiteral(" A \0rest\0"), QStringLiteral(" A ")},
                                           ServicePackRow{"nothing but NULs", QStringLiteral("\0\0\0"), QString()},
                                           ServicePackRow{"no NUL is left as read", QStringLiteral("Service Pack 6"),
                                                          QStringLiteral("Service Pack 6")},
                                           ServicePackRow{"empty", QString(), QString()}),
                         support::RowName());

TEST(SystemInfo, WithoutAnAnswerEveryTextStaysEmpty)
{
    const SystemInfo info = FillSystemInfo([] { return std::nullopt; });
    EXPECT_EQ(info.Platform, 0);
    EXPECT_TRUE((info.Name + info.Version + info.ServicePack + info.Build).isEmpty());
}

} // namespace
} // namespace quillon::ui
