#include "store/system_entry.h"

#include "tests/support/row_name.h"
#include "tests/support/sample_pair.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

namespace quillon::store {
namespace {

using engine::SystemId;
using Fault = DamagedValue::Fault;

/// The file of SamplePair under the name "home" with one line of it replaced, or taken out by an empty one.
PrivateProfile SampleWith(const std::string& key, const std::string& line)
{
    std::string bytes = "[home]\n" + support::SampleEntries("\n");
    const std::size_t begin = bytes.find(key + "=");
    bytes.replace(begin, bytes.find('\n', begin) - begin, line);
    return PrivateProfile(bytes);
}

PrivateProfile SampleWithValue(const std::string& key, const std::string& value)
{
    return SampleWith(key, std::string(key).append("=").append(value));
}

std::string FileOf(const SystemPair& pair)
{
    PrivateProfile file;
    for (const auto& [key, value] : PairEntries(pair)) {
        file.Make(file.ValueChange("home", key, value));
    }
    return std::string(file.Bytes());
}

TEST(SystemEntry, HoldsTwelveFieldsOfEachSystemInTheirOrder)
{
    std::string lines;
    for (const auto& [key, value] : PairEntries(support::SamplePair())) {
        lines.append(key).append("=").append(value).append("\n");
    }
    EXPECT_EQ(lines, support::SampleEntries("\n"));
}

TEST(SystemEntry, TextsAreWrittenWithoutBlanksAroundThem)
{
    SystemPair pair = support::SamplePair();
    pair[SystemId::One].AntennaBrand = "  a b  ";
    EXPECT_EQ(PairEntries(pair)[0].second, "a b");
}

struct NumberRow
{
    const char* name;
    float figure;
    const char* text;
};

class WrittenNumber : public ::testing::TestWithParam<NumberRow>
{
};

TEST_P(WrittenNumber, IsTheShortestTextThatReadsBack)
{
    SystemPair pair = support::SamplePair();
    pair[SystemId::Two].CoaxLoss = GetParam().figure;
    EXPECT_EQ(PairEntries(pair)[18], std::pair(std::string("System2CoaxLoss"), std::string(GetParam().text)));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Numbers, WrittenNumber, ::testing::Values(
    NumberRow{"whole", 100.0F, "100"},
    NumberRow{"places", 6.5F, "6.5"},
    NumberRow{"below one", 0.75F, "0.75"},
    NumberRow{"negative", -1.2F, "-1.2"},
    NumberRow{"nine digits where it takes them", 107.492004F, "107.492004"},
    NumberRow{"without exponent", 1e-7F, "0.0000001"}), support::RowName());

// clang-format on

TEST(SystemEntry, ResetIsEmptyButForFiveFigures)
{
    const engine::SystemData reset = ResetSystem();
    EXPECT_EQ(reset.AntennaBrand.Trimmed() + reset.AntennaModel.Trimmed(), "");
    EXPECT_EQ(reset.CoaxBrand.Trimmed() + reset.CoaxModel.Trimmed(), "");
    EXPECT_EQ(reset.GainType, "");
    EXPECT_EQ(reset.AntennaGain, 0.0F);
    EXPECT_EQ(reset.UseAntennaList, engine::kFalse);
    EXPECT_EQ(reset.UseCoaxList, engine::kFalse);
    EXPECT_EQ(reset.CoaxType, 0);
    EXPECT_EQ(reset.CoaxLoss, 0.0F);
    EXPECT_EQ(reset.CoaxLength, 100.0F);
    EXPECT_EQ(reset.ConnectorLoss, 0.0F);
    EXPECT_EQ(reset.Frequency, 18.2F);
    EXPECT_EQ(reset.Connectors, 2);
    EXPECT_EQ(reset.XmitPower, 100.0F);
    EXPECT_EQ(reset.VSWR, 1.1F);
}

TEST(SystemEntry, IsReadAsItWasWritten)
{
    const PrivateProfile file("[home]\n" + support::SampleEntries("\n"));
    EXPECT_EQ(std::get<SystemPair>(ReadPair(file, "HOME")), support::SamplePair());
}

struct DefaultRow
{
    const char* name; ///< of the field
    void (*reset)(engine::SystemData&);
};

class MissingValue : public ::testing::TestWithParam<DefaultRow>
{
};

TEST_P(MissingValue, LeavesItsDefault)
{
    const std::string field = GetParam().name;
    SystemPair wanted = support::SamplePair();
    GetParam().reset(wanted[SystemId::One]);
    EXPECT_EQ(std::get<SystemPair>(ReadPair(SampleWith("System1" + field, ""), "home")), wanted);
    EXPECT_EQ(std::get<SystemPair>(ReadPair(SampleWith("System1" + field, "System1" + field + "="), "home")), wanted);

    wanted = support::SamplePair();
    GetParam().reset(wanted[SystemId::Two]);
    EXPECT_EQ(std::get<SystemPair>(ReadPair(SampleWith("System2" + field, ""), "home")), wanted);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Defaults, MissingValue, ::testing::Values(
    DefaultRow{"AntennaBrand", [](engine::SystemData& data) { data.AntennaBrand = ""; }},
    DefaultRow{"AntennaModel", [](engine::SystemData& data) { data.AntennaModel = ""; }},
    DefaultRow{"CoaxBrand", [](engine::SystemData& data) { data.CoaxBrand = ""; }},
    DefaultRow{"CoaxModel", [](engine::SystemData& data) { data.CoaxModel = ""; }},
    DefaultRow{"Connectors", [](engine::SystemData& data) { data.Connectors = 2; }},
    DefaultRow{"Frequency", [](engine::SystemData& data) { data.Frequency = 18.2F; }},
    DefaultRow{"XmitPower", [](engine::SystemData& data) { data.XmitPower = 100; }},
    DefaultRow{"VSWR", [](engine::SystemData& data) { data.VSWR = 1.1F; }}), support::RowName());

// clang-format on

class RequiredValue : public ::testing::TestWithParam<const char*>
{
protected:
    static DamagedValue Damage(const std::string& key, const std::string& line)
    {
        return std::get<DamagedValue>(ReadPair(SampleWith(key, line), "home"));
    }
};

TEST_P(RequiredValue, IsMissedInEitherSystem)
{
    for (const std::string system : {"System1", "System2"}) {
        const std::string key = system + GetParam();
        EXPECT_EQ(Damage(key, ""), (DamagedValue{key, "", Fault::Missing}));
        EXPECT_EQ(Damage(key, key + "="), (DamagedValue{key, "", Fault::Missing}));
        EXPECT_EQ(Damage(key, key + "=\"\""), (DamagedValue{key, "", Fault::Missing}));
    }
}

TEST_P(RequiredValue, MustBeANumberAndNothingElse)
{
    for (const std::string value :
         {"abc", "x1", ".", "-", "+", "\" \"", "inf", "nan", "7.5 dBd", "3,9", "1.2.3", "+-5", "-+5", "++5", "--5"}) {
        const std::string key = std::string("System2") + GetParam();
        const auto damage = std::get<DamagedValue>(ReadPair(SampleWithValue(key, value), "home"));
        EXPECT_EQ(damage.key, key) << value;
        EXPECT_EQ(damage.fault, Fault::NoNumber) << value;
    }
}

TEST_P(RequiredValue, MustFitInto32Bits)
{
    // The smallest number that no longer rounds to one of 32 bits, 2^128 - 2^103, is the first.
    for (const std::string value : {"340282356779733661637539395458142568448", "1e99", "-1e39", "1e999"}) {
        const std::string key = std::string("System1") + GetParam();
        EXPECT_EQ(std::get<DamagedValue>(ReadPair(SampleWithValue(key, value), "home")),
                  (DamagedValue{key, value, Fault::TooLarge}));
    }
}

TEST_P(RequiredValue, IsZeroWhenItIsTooCloseToIt)
{
    for (const std::string value : {"1e-60", "-1e-60", "1e-400", "+1e-400", "-1e-400", "0.0"}) {
        const std::string key = std::string("System1") + GetParam();
        EXPECT_EQ(ReadPair(SampleWithValue(key, value), "home"), ReadPair(SampleWithValue(key, "0"), "home")) << value;
    }
}

INSTANTIATE_TEST_SUITE_P(Figures, RequiredValue,
                         ::testing::Values("AntennaGain", "CoaxType", "CoaxLoss", "CoaxLength"));

TEST(SystemEntry, LargestNumberIsTheOneThatStillRoundsTo32Bits)
{
    // 2^128 - 2^103 - 2^75
    const auto read = ReadPair(SampleWithValue("System1CoaxLength", "340282356779733623858607532500980858880"), "home");
    EXPECT_EQ(std::get<SystemPair>(read)[engine::SystemId::One].CoaxLength, std::numeric_limits<float>::max());
}

TEST(SystemEntry, FirstDamagedValueIsTheOneNamed)
{
    EXPECT_EQ(std::get<DamagedValue>(ReadPair(PrivateProfile(""), "home")),
              (DamagedValue{"System1AntennaGain", "", Fault::Missing}));
}

struct OddRow
{
    const char* name;
    const char* key;
    const char* value;
    void (*apply)(engine::SystemData&);
};

class OddValue : public ::testing::TestWithParam<OddRow>
{
};

TEST_P(OddValue, IsReadAsFarAsItGoes)
{
    const std::string key = GetParam().key;
    SystemPair wanted = support::SamplePair();
    GetParam().apply(wanted[SystemId::One]);
    const auto read = ReadPair(SampleWithValue(key, GetParam().value), "home");
    ASSERT_TRUE(std::holds_alternative<SystemPair>(read));
    EXPECT_EQ(std::get<SystemPair>(read), wanted);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Values, OddValue, ::testing::Values(
    OddRow{"number between blanks in quotes", "System1CoaxLoss", "\" 3.9 \"", [](auto& data) { data.CoaxLoss = 3.9F; }},
    OddRow{"number with a plus sign", "System1AntennaGain", "+7.5", [](auto& data) { data.AntennaGain = 7.5F; }},
    OddRow{"power with its unit", "System1XmitPower", "50 W", [](auto& data) { data.XmitPower = 50; }},
    OddRow{"whole number from a fraction, halves to even", "System1CoaxType", "2.5", [](auto& data) { data.CoaxType = 2; }},
    OddRow{"smallest whole number", "System1CoaxType", "-32768", [](auto& data) { data.CoaxType = -32768; }},
    OddRow{"connectors that are no number are none", "System1Connectors", "two", [](auto& data) { data.Connectors = 0; }},
    OddRow{"frequency that is no number is 0", "System1Frequency", "x", [](auto& data) { data.Frequency = 0; }},
    OddRow{"power that is no number is 0", "System1XmitPower", "x", [](auto& data) { data.XmitPower = 0; }},
    OddRow{"VSWR that is no number is 0", "System1VSWR", "x", [](auto& data) { data.VSWR = 0; }},
    OddRow{"power beyond a float is the largest", "System1XmitPower", "1e99",
           [](auto& data) { data.XmitPower = std::numeric_limits<float>::max(); }},
    OddRow{"antenna brand is cut to 25", "System1AntennaBrand", "abcdefghijklmnopqrstuvwxyz",
           [](auto& data) { data.AntennaBrand = "abcdefghijklmnopqrstuvwxy"; }},
    OddRow{"antenna model is cut to 25", "System1AntennaModel", "abcdefghijklmnopqrstuvwxyz",
           [](auto& data) { data.AntennaModel = "abcdefghijklmnopqrstuvwxy"; }},
    OddRow{"coax brand is cut to 15", "System1CoaxBrand", "abcdefghijklmnop",
           [](auto& data) { data.CoaxBrand = "abcdefghijklmno"; }},
    OddRow{"coax model is cut to 20", "System1CoaxModel", "abcdefghijklmnopqrstu",
           [](auto& data) { data.CoaxModel = "abcdefghijklmnopqrst"; }},
    OddRow{"text loses its quotes", "System1CoaxModel", "\"RG 8\"", [](auto& data) { data.CoaxModel = "RG 8"; }}),
    support::RowName());

// clang-format on

TEST(SystemEntry, WholeNumberBeyond16BitsIsRefused)
{
    for (const std::string key : {"System1CoaxType", "System2Connectors"}) {
        for (const std::string value : {"32768", "-32769", "1e99"}) {
            EXPECT_EQ(std::get<DamagedValue>(ReadPair(SampleWithValue(key, value), "home")),
                      (DamagedValue{key, value, Fault::TooLarge}));
        }
    }
}

TEST(SystemEntry, NamesAreReadAlsoFromADamagedPair)
{
    const PrivateProfile file("[x]\nSystem1AntennaBrand=\" A \"\nSystem1AntennaModel=B\nSystem2CoaxBrand="
                              "abcdefghijklmnop\nSystem2CoaxModel=D\n");
    const engine::PerSystem<SystemNames> names = ReadNames(file, "x");
    EXPECT_EQ(names[SystemId::One], (SystemNames{"A", "B", "", ""}));
    EXPECT_EQ(names[SystemId::Two], (SystemNames{"", "", "abcdefghijklmno", "D"}));
    EXPECT_EQ(ReadNames(file, "missing")[SystemId::One], SystemNames());
}

/// Any float there is: every bit pattern that is a number is as likely as the next.
float RandomFigure(std::mt19937& random)
{
    constexpr std::array kExtremes{0.0F,
                                   1.0F,
                                   -1.0F,
                                   std::numeric_limits<float>::max(),
                                   std::numeric_limits<float>::lowest(),
                                   std::numeric_limits<float>::min(),
                                   std::numeric_limits<float>::denorm_min(),
                                   16777217.0F};
    if (random() % 4 == 0) {
        return kExtremes.at(random() % kExtremes.size());
    }
    float figure = 0;
    do {
        const auto bits = static_cast<std::uint32_t>(random());
        std::memcpy(&figure, &bits, sizeof figure);
    } while (!std::isfinite(figure) || figure == 0);
    return figure;
}

/// Letters of the whole code page, undefined ones included; no quotes at the ends, which reading drops.
std::string RandomText(std::mt19937& random, std::size_t width)
{
    std::string text;
    const std::size_t length = random() % (width + 1);
    while (text.size() < length) {
        const auto letter = static_cast<char>(0x21 + random() % (0x100 - 0x21));
        text.push_back(letter == '"' || letter == '\'' || letter == 0x7F ? '=' : letter);
    }
    return text;
}

engine::SystemData RandomSystem(std::mt19937& random)
{
    engine::SystemData data;
    data.AntennaBrand = RandomText(random, 25);
    data.AntennaModel = RandomText(random, 25);
    data.CoaxBrand = RandomText(random, 15);
    data.CoaxModel = RandomText(random, 20);
    data.CoaxType = static_cast<std::int16_t>(random());
    data.Connectors = static_cast<std::int16_t>(random());
    for (float* figure :
         {&data.AntennaGain, &data.CoaxLoss, &data.CoaxLength, &data.Frequency, &data.XmitPower, &data.VSWR}) {
        *figure = RandomFigure(random);
    }
    return data;
}

TEST(SystemEntry, AnyPairComesBackAsItWasWritten)
{
    std::mt19937 random(20031102);
    for (int round = 0; round < 500; ++round) {
        const SystemPair pair{RandomSystem(random), RandomSystem(random)};
        const PrivateProfile file(FileOf(pair));
        ASSERT_EQ(std::get<SystemPair>(ReadPair(file, "home")), pair) << file.Bytes();
    }
}

} // namespace
} // namespace quillon::store
