#pragma once

#include "engine/records.h"

#include <QString>

#include <array>
#include <optional>
#include <string>

class QLabel;
class QWidget;

namespace quillon::test {

/// The values as a person reads them beside the markers, and the markers as they must then stand: a second computation
/// that takes nothing from the engine's own.
class MarkerModel
{
public:
    MarkerModel(const QWidget& window, const engine::AntennaSystems& systems, QChar separator);

    /// Follows a computation that has ended since the last look. Cheap when nothing has changed on show.
    void Look();

    /// @return what is wrong with the markers on show, if anything is.
    [[nodiscard]] std::optional<std::string> Check();

private:
    static constexpr std::size_t kRows = 9;
    using Pair = std::array<bool, 2>;

    [[nodiscard]] double Value(std::size_t row, std::size_t system) const;
    [[nodiscard]] bool IsReset(std::size_t system) const;
    void Compare();

    const engine::AntennaSystems& m_systems;
    QChar m_separator;
    std::array<std::array<const QLabel*, 2>, kRows> m_labels{};
    std::array<std::array<const QWidget*, 2>, kRows> m_shapes{};
    std::array<std::array<QString, 2>, kRows> m_texts; ///< as last looked at
    engine::PerSystem<engine::SystemResults> m_results;
    std::array<Pair, kRows> m_filled{};
};

} // namespace quillon::test
