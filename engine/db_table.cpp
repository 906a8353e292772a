#include "engine/db_table.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"

#include <cstddef>

namespace quillon::engine {

namespace {

/// One line per dB, in tenths; as given in rows 51, 99 and 152, which lie beside the power of ten.
// clang-format off
constexpr std::array<std::string_view, kDBRowCount> kGainCoefficients{
    "1.000", "1.023", "1.047", "1.072", "1.096", "1.122", "1.148", "1.175", "1.202", "1.230", // 0 dB
    "1.259", "1.288", "1.318", "1.349", "1.380", "1.413", "1.445", "1.479", "1.514", "1.549", // 1 dB
    "1.585", "1.622", "1.660", "1.698", "1.738", "1.778", "1.820", "1.862", "1.905", "1.950", // 2 dB
    "1.995", "2.042", "2.089", "2.138", "2.188", "2.239", "2.291", "2.344", "2.399", "2.455", // 3 dB
    "2.512", "2.570", "2.630", "2.692", "2.754", "2.818", "2.884", "2.951", "3.020", "3.090", // 4 dB
    "3.162", "3.326", "3.311", "3.388", "3.467", "3.548", "3.631", "3.715", "3.802", "3.890", // 5 dB
    "3.981", "4.074", "4.169", "4.266", "4.365", "4.467", "4.571", "4.677", "4.786", "4.898", // 6 dB
    "5.012", "5.129", "5.248", "5.370", "5.495", "5.623", "5.754", "5.888", "6.026", "6.166", // 7 dB
    "6.310", "6.457", "6.607", "6.761", "6.918", "7.079", "7.244", "7.413", "7.586", "7.762", // 8 dB
    "7.943", "8.128", "8.318", "8.511", "8.710", "8.913", "9.120", "9.333", "9.550", "9.722", // 9 dB
    "10.000", "10.23", "10.47", "10.72", "10.96", "11.22", "11.48", "11.75", "12.02", "12.30", // 10 dB
    "12.59", "12.88", "13.18", "13.49", "13.80", "14.13", "14.45", "14.79", "15.14", "15.49", // 11 dB
    "15.85", "16.22", "16.60", "16.98", "17.38", "17.78", "18.20", "18.62", "19.05", "19.50", // 12 dB
    "19.95", "20.42", "20.89", "21.38", "21.88", "22.39", "22.91", "23.44", "23.99", "24.55", // 13 dB
    "25.12", "25.70", "26.30", "26.92", "27.54", "28.18", "28.84", "29.51", "30.20", "30.90", // 14 dB
    "31.62", "32.36", "35.11", "33.88", "34.67", "35.48", "36.31", "37.15", "38.02", "38.90", // 15 dB
    "39.81", "40.74", "41.69", "42.66", "43.65", "44.67", "45.71", "46.77", "47.86", "48.98", // 16 dB
    "50.12", "51.29", "52.48", "53.70", "54.95", "56.23", "57.54", "58.88", "60.26", "61.66", // 17 dB
    "63.10", "64.57", "66.07", "67.61", "69.18", "70.79", "72.44", "74.13", "75.86", "77.62", // 18 dB
    "79.43", "81.28", "83.18", "85.11", "87.10", "89.13", "91.20", "93.33", "95.50", "97.72", // 19 dB
};

// clang-format on

DBTable RoundedTable()
{
    DBTable table;
    for (std::size_t i = 0; i < table.size(); ++i) {
        DBRow& row = table[i];
        row.dB = RoundWithMask(StoreAsFloat(static_cast<double>(i) * 0.1), "#0.000");
        row.gainCoefficient = RoundWithMask(NumberFromText(kGainCoefficients[i]), "#0.000");
        row.lossCoefficient = RoundWithMask(1 / row.gainCoefficient, "#0.0000");
    }
    return table;
}

} // namespace

DBTable BuildDBTable()
{
    // Six hundred roundings take as long as twenty computations, and each pair that is loaded is tried on a table.
    static const DBTable table = RoundedTable();
    return table;
}

float GainToDBd(float gain, std::string_view gainType)
{
    constexpr double kIsotropicOffset = 2.15;
    const double catalogueGain = gain * 0.1;
    const bool isIsotropic = gainType.substr(0, 3) == "dBi";
    const float held = StoreAsFloat(isIsotropic ? catalogueGain - kIsotropicOffset : catalogueGain);
    return RoundWithMask(held, "#0.0");
}

} // namespace quillon::engine
