#pragma once

#include "engine/records.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace quillon::test {

/// Everything that the main window shows of the records: result labels, boxes, and the lines below the lists. Each has
/// to say what the record says, with two exceptions, both as given. Choosing an entry for loading changes the records
/// and leaves the old figures on show; and loading shows some figures shorter than the record holds them.
class ShownFigures
{
public:
    ShownFigures(const QWidget& window, const engine::AntennaSystems& systems, QChar separator);
    ShownFigures(const ShownFigures&) = delete;
    ShownFigures& operator=(const ShownFigures&) = delete;
    ~ShownFigures() = default;

    /// To be called after each event. @param loading  whether the dialog that loads a pair was open during it
    /// @param several  whether more than one change may have come since the last call
    /// @return what is wrong, if anything is.
    [[nodiscard]] std::optional<std::string> Check(bool loading, bool several);

private:
    struct Item
    {
        std::string name;
        std::function<QString()> shown;
        std::function<bool(const QString&)> agrees;  ///< with the record as it is
        std::function<bool(const QString&)> isShort; ///< as loading may show it; none when it does not
        std::function<bool()> isRefused;             ///< the text is marked as not taken over; none when it cannot be
        std::function<float()> held;                 ///< what the record holds, for items that can be refused
        bool onlyWhenChanged = false;                ///< the record may move on without the box
        QString text;                                ///< at the last check
        float heldBefore = 0;                        ///< at the last check
        std::optional<QString> excused;              ///< this text stands although the record says another thing
    };

    void AddResults(const QWidget& window, engine::SystemId system);
    void AddBoxes(const QWidget& window, engine::SystemId system);
    void AddLines(const QWidget& window, engine::SystemId system);
    void AddTypedFigures(const QWidget& window);
    [[nodiscard]] Item Box(const QWidget& window, const QString& name, std::function<float()> held,
                           const char* mask) const;
    [[nodiscard]] std::optional<std::string> Check(Item& item, bool loading, bool several) const;
    [[nodiscard]] QString Masked(float value, const char* mask) const;
    [[nodiscard]] std::optional<float> Number(QString text) const;

    const engine::AntennaSystems& m_systems;
    QChar m_separator;
    std::vector<Item> m_items;
    engine::PerSystem<engine::SystemData> m_data;
    engine::PerSystem<engine::SystemResults> m_results;
};

} // namespace quillon::test
