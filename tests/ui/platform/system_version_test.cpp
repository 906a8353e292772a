#include "ui/platform/system_version.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include <sys/utsname.h>

namespace quillon::ui {
namespace {

/// What the release file calls the system.
std::string NameInReleaseFile()
{
    std::ifstream file("/etc/os-release");
    const std::string key = "PRETTY_NAME=\"";
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(key)) {
            return line.substr(key.size(), line.size() - key.size() - 1);
        }
    }
    return {};
}

TEST(SystemVersion, IsThatOfTheKernelUnderTheDistributionsName)
{
    ::utsname kernel{};
    ASSERT_EQ(::uname(&kernel), 0);
    const std::string release = kernel.release;

    const auto answer = AskSystemVersion();

    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->platform, SystemVersion::kUnnumbered);
    EXPECT_EQ(answer->name.toStdString(), NameInReleaseFile());
    EXPECT_EQ(answer->build.toStdString(), release);
    EXPECT_TRUE(release.starts_with(std::to_string(answer->major) + "." + std::to_string(answer->minor))) << release;
    EXPECT_TRUE(answer->servicePack.isEmpty());
}

} // namespace
} // namespace quillon::ui
