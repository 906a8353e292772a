#include "bench/store/sample_files.h"

#include "store/catalogue.h"

#include <fstream>
#include <stdexcept>

namespace quillon::bench {
namespace {

constexpr std::array<std::string_view, 7> kKinds{"BEAM", "QUAD", "YAGI", "LOOP", "DIPOLE", "VERTICAL", "LOGPER"};

/// What a maker's file may hold besides what the program asks for; a comment to all readers.
constexpr std::string_view kRemark = "# Data sheet of the maker, page 17: forward gain in free space, tenths of a dB";

} // namespace

std::string ModelName(std::size_t place)
{
    const std::string number = std::to_string(place);
    return std::string(kKinds.at(place % kKinds.size())).append(" ").append(7 - number.size(), '0').append(number);
}

const std::array<std::string, kValuesOfModel>& ModelKeys()
{
    static const auto keys = [] {
        std::array<std::string, kValuesOfModel> names{"GainType"};
        for (std::size_t band = 0; band < store::kBandSuffixes.size(); ++band) {
            names.at(band + 1) = std::string("Gain").append(store::kBandSuffixes.at(band));
        }
        return names;
    }();
    return keys;
}

std::string GainText(std::size_t model, std::size_t key)
{
    return std::to_string(22 + (model + key) % 170);
}

std::string SampleText(std::size_t models)
{
    std::string text;
    for (std::size_t place = 0; place < models; ++place) {
        text.append("[").append(ModelName(place)).append("]\r\n").append(kRemark).append("\r\n");
        text.append(ModelKeys().front()).append(place % 2 == 0 ? "=dBi\r\n" : "=dBd\r\n");
        for (std::size_t key = 1; key < kValuesOfModel; ++key) {
            text.append(ModelKeys().at(key)).append("=").append(GainText(place, key)).append("\r\n");
        }
        text.append("\r\n");
    }
    return text;
}

void WriteFile(const std::filesystem::path& file, std::string_view text)
{
    std::ofstream stream(file, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!stream.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace quillon::bench
