// Masks, number texts, rounding, key checks and fixed texts against the C library.

#include "engine/arithmetic_error.h"
#include "engine/bands.h"
#include "engine/decimal.h"
#include "engine/fixed_text.h"
#include "engine/key_checks.h"
#include "engine/mask.h"
#include "engine/number_text.h"
#include "engine/spin_conversions.h"
#include "engine/text_compare.h"
#include "fuzz/expect.h"
#include "fuzz/input.h"
#include "fuzz/number_model.h"
#include "fuzz/profile_model.h"

#include <bit>
#include <cmath>
#include <optional>

namespace quillon::fuzz {
namespace {

constexpr std::array<std::string_view, 16> kMasks{"0.0",       "0.00",   "##000.00", "##.0",   "####",     "#0.00",
                                                  "##0.00",    "0.0000", "#0.0",     "##.00",  "####0.00", "##00.0",
                                                  "#####0.00", "00.000", "###0.000", "######0"};

/// What a function gives, or nothing when it refuses.
template <class Function>
auto Result(const Function& function) -> std::optional<decltype(function())>
{
    try {
        return function();
    } catch (const engine::ArithmeticError&) {
        return std::nullopt;
    }
}

bool IsSameFloat(float left, float right)
{
    return std::bit_cast<std::uint32_t>(left) == std::bit_cast<std::uint32_t>(right);
}

/// Zero loses its sign in every text.
float WithoutSignOfZero(float value)
{
    return value == 0 ? 0.0F : value;
}

void CheckTexts(float value, std::string_view mask)
{
    const auto masked = Result([&] { return engine::FormatWithMask(value, mask); });
    const auto shortest = Result([&] { return engine::ShortestText(value); });
    const auto plain = Result([&] { return engine::PlainText(value); });
    const bool isFinite = std::isfinite(value);
    Expect(masked.has_value() == isFinite && shortest.has_value() == isFinite && plain.has_value() == isFinite,
           "what is not finite has no text");
    if (!isFinite) {
        return;
    }
    Expect(*masked == MaskedByLibrary(value, mask), "a mask lays out the rounded number");
    Expect(*shortest == ShortestByLibrary(value), "the shortest text has the fewest digits");
    Expect(*plain == PlainByLibrary(value), "a plain text has seven digits");
    Expect(IsSameFloat(engine::NumberFromText(*shortest), WithoutSignOfZero(value)), "the shortest text reads back");
    const float rounded = engine::RoundWithMask(value, mask);
    Expect(IsSameFloat(rounded, engine::NumberFromText(*masked)), "rounding gives what is shown");
    Expect(IsSameFloat(engine::RoundWithMask(rounded, mask), rounded), "rounding again changes nothing");
    Expect(engine::FormatWithMask(value, mask, ",").size() == masked->size(), "any separator takes its place");
}

void CheckReading(std::string_view text)
{
    float expected = 0;
    const bool isNumber = ReadByLibrary(text, expected);
    const std::optional<float> number = engine::ReadNumber(text);
    Expect(number.has_value() == isNumber, "a text starts with a number or not");
    Expect(!isNumber || IsSameFloat(*number, expected), "a number is read to the last bit");
    Expect(IsSameFloat(engine::NumberFromText(text), isNumber ? expected : 0.0F), "no number is zero");
}

void CheckIntegers(double value)
{
    const auto whole = Result([value] { return engine::ToInteger(value); });
    const double floor = std::floor(value);
    const bool goesUp = value - floor > 0.5 || (value - floor == 0.5 && std::fmod(floor, 2) != 0);
    const double expected = floor + (goesUp ? 1 : 0);
    Expect(whole.has_value() == (expected >= -32768 && expected <= 32767), "a whole number has 16 bits");
    Expect(!whole || *whole == expected, "halves go to the even number");
}

void CheckSpins(float position)
{
    const auto power = Result([position] { return engine::SpinToOutputPower(position); });
    Expect(!power || (power->value >= 1 && power->unrounded > 0), "the power is 1 W at least");
    const auto length = Result([position] { return engine::SpinToCoaxLength(position); });
    Expect(!length || IsSameFloat(length->unrounded, 3500 - position), "the length counts down from the top");
    static_cast<void>(Result([position] { return engine::SpinToAntennaGain(position).value; }));
    static_cast<void>(Result([position] { return engine::SpinToVSWR(position).value; }));
    static_cast<void>(Result([position] { return engine::RoundTenths(position); }));
}

class CountingNotifier : public engine::Notifier
{
public:
    void Inform(std::string_view /*text*/, std::string_view /*title*/) override { ++count; }

    int count = 0;
};

void CheckKeys(int key)
{
    const std::string_view passing = "\b\t\n\r\x1B";
    const bool isAscii = key > 0 && key < 128;
    const char character = isAscii ? static_cast<char>(key) : '\0';
    const bool isControl = isAscii && passing.find(character) != std::string_view::npos;
    const bool isGain = isAscii && std::string_view("0123456789-.").find(character) != std::string_view::npos;
    Expect(engine::FilterGainKey(key) == (isControl || isGain ? key : 0), "a gain takes digits, sign and point");
    const int capital = key >= 'a' && key <= 'z' ? key - 32 : key;
    Expect(engine::FilterListKey(key) == (isControl || (capital >= 32 && capital <= 90) ? capital : 0),
           "a list takes capitals");
    CountingNotifier notifier;
    Expect(engine::CheckNumericKey(key, notifier) && notifier.count <= 1, "a key goes through, told of at most once");
}

void CheckFixedText(std::string_view text)
{
    engine::FixedText<15> field;
    field = text;
    std::string padded(text.substr(0, 15));
    padded.resize(15, ' ');
    Expect(field.Padded() == padded, "a field is cut or padded");
    Expect(field.Trimmed() == ProfileModel::StripBlanks(padded), "a field is read without blanks around it");
    Expect(engine::EqualIgnoringCase(text, padded) == ProfileModel::IsSame(std::string(text), padded),
           "letter case does not count");
    Expect(std::isfinite(engine::FrequencyForBand(text)), "a band has a frequency");
}

void Run(Input input)
{
    const unsigned mask = input.Byte();
    const std::string_view knownMask = kMasks.at(mask % kMasks.size());
    if (mask >= 128) {
        const std::string_view text = input.Record();
        CheckReading(text);
        CheckFixedText(text);
        return CheckTexts(engine::NumberFromText(text), knownMask);
    }
    const float value = input.Float();
    const int firstKey = input.Short();
    for (int key = firstKey; key < firstKey + 16; ++key) {
        CheckKeys(key);
    }
    CheckSpins(value);
    CheckIntegers(static_cast<double>(value));
    CheckIntegers(static_cast<double>(value) * 10);
    std::string ownMask(input.Record().substr(0, 20));
    std::erase_if(ownMask, [](char character) { return character != '0' && character != '#' && character != '.'; });
    CheckTexts(value, ownMask.empty() ? knownMask : std::string_view(ownMask));
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
