#include "ui/help/help_document.h"

#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quillon::ui {
namespace {

class HelpDocument : public ::testing::Test
{
protected:
    support::TempFolder folder;
};

std::string Nested(int depth)
{
    std::string html;
    for (int level = 0; level < depth; ++level) {
        html += "<table><tr><td>";
    }
    return html;
}

TEST_F(HelpDocument, IsReadWhole)
{
    EXPECT_EQ(ReadHelpDocument(folder.Put("a.hlp", "<p>50 \xCE\xA9</p>\n")), QStringLiteral("<p>50 \u03A9</p>\n"));
}

TEST_F(HelpDocument, MayBeEmpty)
{
    EXPECT_EQ(ReadHelpDocument(folder.Put("a.hlp", "")), QString());
}

TEST_F(HelpDocument, MayBeAsLongAsTheBound)
{
    EXPECT_TRUE(ReadHelpDocument(folder.Put("a.hlp", std::string(kLargestHelp, 'x'))));
    EXPECT_FALSE(ReadHelpDocument(folder.Put("a.hlp", std::string(kLargestHelp + 1, 'x'))));
}

struct HostileRow
{
    const char* name;
    std::string bytes;
};

class HostileHelp : public HelpDocument, public ::testing::WithParamInterface<HostileRow>
{
};

TEST_P(HostileHelp, IsNoHelp)
{
    EXPECT_FALSE(ReadHelpDocument(folder.Put("a.hlp", GetParam().bytes)));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bytes, HostileHelp, ::testing::Values(
    HostileRow{"zero bytes", std::string("<p>\0</p>", 8)},
    HostileRow{"no UTF-8", "<p>\xFF\xFE</p>"},
    HostileRow{"UTF-8 that ends too early", "<p>\xCE"},
    HostileRow{"nested deeper than the stack bears", Nested(10000)},
    HostileRow{"nested just deeper than the bound", Nested(22)}), support::RowName());

// clang-format on

TEST_F(HelpDocument, MayBeNestedAsDeepAsAManualIs)
{
    EXPECT_TRUE(ReadHelpDocument(folder.Put("a.hlp", Nested(21))));
    EXPECT_TRUE(ReadHelpDocument(folder.Put("a.hlp", std::string(4000, '<') + "p></p>")));
    std::string flat;
    for (int row = 0; row < 1000; ++row) {
        flat += "<p>a</p>";
    }
    EXPECT_TRUE(ReadHelpDocument(folder.Put("a.hlp", flat)));
}

TEST_F(HelpDocument, IsNothingButARegularFile)
{
    EXPECT_FALSE(ReadHelpDocument(folder / "missing.hlp"));
    EXPECT_FALSE(ReadHelpDocument(folder.Path()));
    ASSERT_EQ(::mkfifo((folder / "pipe.hlp").c_str(), 0600), 0);
    EXPECT_FALSE(ReadHelpDocument(folder / "pipe.hlp"));
    folder.Put("huge.hlp", "x");
    std::filesystem::resize_file(folder / "huge.hlp", std::uintmax_t{1} << 40U);
    EXPECT_FALSE(ReadHelpDocument(folder / "huge.hlp"));
}

} // namespace
} // namespace quillon::ui
