#include "tests/engine/calculations_fixture.h"

namespace quillon::engine {
namespace {

TEST_F(CalculationsTest, AComputationIsSeenOnlyWhenItIsCommitted)
{
    const SystemResults before = ResultsOfOne();
    const Computation computation = calculations.Compute(1);
    EXPECT_EQ(computation.results.ERP, 234.4F);
    EXPECT_EQ(ResultsOfOne(), before);
    EXPECT_TRUE(display.Lines().empty());

    NumberWriter text(".");
    computation.Commit(systems, display, text);
    EXPECT_EQ(ResultsOfOne(), computation.results);
    const Lines committed = display.Lines();
    EXPECT_EQ(committed.size(), 15U) << "nine results, five formulas, one comparison";

    display.Clear();
    calculations.RefreshData(1);
    EXPECT_EQ(display.Lines(), committed);
}

} // namespace
} // namespace quillon::engine
