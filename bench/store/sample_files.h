#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

namespace quillon::bench {

/// A size of maker's file: its name in the names of the benchmarks, and the number of models in it.
struct SampleSize
{
    std::string_view name;
    std::size_t models;
};

inline constexpr std::array kSampleSizes{SampleSize{"15K", 50}, SampleSize{"300K", 1'000}, SampleSize{"30M", 100'000}};

/// Number of values in each model: its unit and a gain for each of the 14 bands.
inline constexpr std::size_t kValuesOfModel = 15;

/// A maker's file that all readers here understand, about 300 bytes a model.
[[nodiscard]] std::string SampleText(std::size_t models);

/// @param place  from 0
[[nodiscard]] std::string ModelName(std::size_t place);

/// @return names of a model's keys that hold a value which the program asks for: the unit, then the gains.
[[nodiscard]] const std::array<std::string, kValuesOfModel>& ModelKeys();

/// Gain of a model at the place of one of its keys, as it stands in the file.
[[nodiscard]] std::string GainText(std::size_t model, std::size_t key);

void WriteFile(const std::filesystem::path& file, std::string_view text);

/// Models of a file in an order that is the same at each run and that no reader can foresee.
class ModelPicker
{
public:
    explicit ModelPicker(std::size_t models)
        : m_place(0, models - 1)
    {
    }

    [[nodiscard]] std::string Next() { return ModelName(m_place(m_numbers)); }

private:
    std::minstd_rand m_numbers;
    std::uniform_int_distribution<std::size_t> m_place;
};

} // namespace quillon::bench
