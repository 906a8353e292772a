#include "engine/coax_model.h"
#include "engine/db_table.h"
#include "engine/number_text.h"
#include "engine/vswr_table.h"
#include "tests/ui/help/shipped_help.h"

#include <gmock/gmock.h>

#include <cmath>

namespace quillon::ui {
namespace {

std::vector<float> Numbers(const char* table)
{
    std::vector<float> numbers;
    const QString html = test::ElementOfClass(test::ShippedHelp(), QStringLiteral("table"), QString::fromLatin1(table));
    for (const QString& cell : test::Cells(html)) {
        numbers.push_back(engine::NumberFromText(cell.toStdString()));
    }
    return numbers;
}

TEST(HelpTables, VSWRTableIsTheOneComputedWith)
{
    const engine::VSWRTable table = engine::BuildVSWRTable();
    const std::vector<float> numbers = Numbers("vswr");
    ASSERT_EQ(numbers.size(), 3U * engine::kVSWRRowCount);
    for (std::size_t place = 0; place < numbers.size(); place += 3) {
        const auto row = engine::FindVSWRRow(table, numbers.at(place));
        ASSERT_TRUE(row) << numbers.at(place);
        EXPECT_EQ(numbers.at(place + 1), row->factor) << numbers.at(place);
        EXPECT_EQ(numbers.at(place + 2), row->lossDB) << numbers.at(place);
    }
}

TEST(HelpTables, ConnectorLossesAreThoseComputedWith)
{
    const std::vector<float> numbers = Numbers("connectors");
    ASSERT_EQ(numbers.size(), 2U * 15);
    for (std::size_t place = 0; place < numbers.size(); place += 2) {
        const float justBelow = std::nextafter(numbers.at(place), 0.0F);
        EXPECT_EQ(numbers.at(place + 1), engine::ConnectorLossPerConnector(justBelow)) << numbers.at(place);
        EXPECT_NE(numbers.at(place + 1), engine::ConnectorLossPerConnector(numbers.at(place))) << "exactly on a bound";
    }
}

TEST(HelpTables, IrregularCoefficientsAreThoseComputedWithAndNoOthers)
{
    const engine::DBTable table = engine::BuildDBTable();
    const std::vector<float> numbers = Numbers("irregular");
    ASSERT_EQ(numbers.size(), 3U * 3);
    std::vector<float> irregular;
    for (const engine::DBRow& row : table) {
        if (std::abs(row.gainCoefficient / std::pow(10, row.dB / 10) - 1) > 0.001) {
            irregular.push_back(row.dB);
        }
    }
    EXPECT_EQ(irregular, (std::vector{numbers.at(0), numbers.at(3), numbers.at(6)}));
    for (std::size_t place = 0; place < numbers.size(); place += 3) {
        const auto row = engine::FindDBRow(table, numbers.at(place), [] {});
        ASSERT_TRUE(row);
        EXPECT_EQ(numbers.at(place + 1), row->gainCoefficient);
        EXPECT_NEAR(numbers.at(place + 2), std::pow(10, numbers.at(place) / 10), 0.005);
    }
}

/// Losses of a made-up cable that tell by their value where they stand: 2 at 1 MHz, 3 at 10 MHz, 13 at 50 MHz ...
constexpr std::array<float, 9> kCable{2, 3, 13, 14, 15, 16, 17, 18, 19};

struct SegmentRow
{
    const char* says;
    float frequency;
    float loss;
};

// What the help says of each range of frequencies, and what the model gives there.
const SegmentRow kSegments[] = {
    {"0.02 dB for every cable", 0.5F, 0.02F},
    {"that at 1 MHz + 0.01 dB", 7.23F, 2.01F},
    {"that at 10 MHz + 0.01 dB + n/10 of the step from 10 to 50 MHz", 14.25F, 5.01F},
    {"that at 50 MHz + 0.01 dB", 50.125F, 13.01F},
    {"that at 100 MHz + 0.01 dB", 144.2F, 14.01F},
    {"that at 200 MHz + 0.01 dB", 222.1F, 15.01F},
    {"that at 400 MHz + 0.01 dB", 432.1F, 16.01F},
    {"that at 700 MHz + 0.01 dB", 800, 17.01F},
    {"that at 900 MHz + 0.01 dB", 950, 18.01F},
    {"0 dB", 1296, 0},
};

TEST(HelpTables, CoaxSegmentsAreThoseOfTheModel)
{
    const QString html = test::ElementOfClass(test::ShippedHelp(), QStringLiteral("table"), QStringLiteral("segments"));
    const QStringList cells = test::Cells(html);
    ASSERT_EQ(cells.size(), 2 * std::ssize(kSegments));
    qsizetype place = 1;
    for (const SegmentRow& row : kSegments) {
        EXPECT_EQ(cells.at(place).toStdString(), row.says);
        EXPECT_FLOAT_EQ(engine::CoaxLossBySpec(kCable, row.frequency), row.loss) << row.frequency;
        place += 2;
    }
}

} // namespace
} // namespace quillon::ui
