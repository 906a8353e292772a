#include "tests/reliability/monkey_markers.h"

#include "tests/support/find_widget.h"

#include <QLabel>
#include <QVariant>

#include <cmath>

namespace quillon::test {

namespace {

/// A row by its marker's place: the label that shows the value, which side is better, and when the row is compared.
struct Row
{
    const char* label;
    int firstIndex;
    bool higherIsBetter;
    bool onlyPositive;
};

constexpr std::array kTable{
    Row{"lblERP", 1, true, true},
    Row{"lblAntennaWGain", 1, true, true},
    Row{"lblFeedPointPower", 1, true, true},
    Row{"lblSystemGain", 1, true, false},
    Row{"lblAntennaGain", 1, true, true},
    Row{"lblVSWRReturnLoss", 1, false, true},
    Row{"lblVSWRReturnLoss", 3, false, false},
    Row{"lblCoaxDBLoss", 1, false, true},
    Row{"lblCoaxPowerLoss", 1, false, true},
};
constexpr std::size_t kERPRow = 0;
constexpr std::size_t kGainRow = 4;

constexpr std::array kShapes{"shpSystemOne", "shpSystemTwo"};

QString Name(const char* array, int index)
{
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(index);
}

/// The results without those that are set before a computation begins.
engine::SystemResults Computed(engine::SystemResults results)
{
    results.ConnectorLoss = 0;
    results.AntennaGainDBd = 0;
    return results;
}

/// As its label shows it: two places, halves away from zero. No figure here is so long that a double would not do.
double Hundredths(float value)
{
    const double exact = std::strtod(std::to_string(value).c_str(), nullptr) * 100;
    return std::round(exact + std::copysign(1e-6, exact)) / 100;
}

} // namespace

MarkerModel::MarkerModel(const QWidget& window, const engine::AntennaSystems& systems, QChar separator)
    : m_systems(systems)
    , m_separator(separator)
{
    for (std::size_t row = 0; row < kRows; ++row) {
        for (std::size_t system = 0; system < 2; ++system) {
            const Row& entry = kTable.at(row);
            const int index = entry.firstIndex + static_cast<int>(system);
            m_labels.at(row).at(system) = &Find<QLabel>(window, Name(entry.label, index));
            m_shapes.at(row).at(system) = &Find<QWidget>(window, Name(kShapes.at(system), static_cast<int>(row)));
            m_texts.at(row).at(system) = m_labels.at(row).at(system)->text();
        }
    }
}

/// Whether a saved pair was chosen for loading but not loaded: the results are gone, the old figures still on show.
bool MarkerModel::IsReset(std::size_t system) const
{
    return Computed(m_systems.Results[engine::kBothSystems.at(system)]) == engine::SystemResults();
}

double MarkerModel::Value(std::size_t row, std::size_t system) const
{
    if (row == kGainRow) { // as given, a typed gain is on show and the list's is compared
        return Hundredths(m_systems.Results[engine::kBothSystems.at(system)].AntennaGainDBd);
    }
    const engine::SystemId id = engine::kBothSystems.at(system);
    // As given, the ERP of a system without an antenna is neither computed nor shown anew.
    const bool isOld = row == kERPRow && m_systems.Data[id].UseAntennaList == engine::kFalse;
    if (IsReset(system) || (isOld && m_systems.Results[id].ERP == 0)) {
        return 0;
    }
    QString text = m_texts.at(row).at(system);
    return text.replace(m_separator, u'.').toDouble();
}

void MarkerModel::Compare()
{
    for (std::size_t row = 0; row < kRows; ++row) {
        const double one = Value(row, 0);
        const double two = Value(row, 1);
        if (kTable.at(row).onlyPositive && (one <= 0 || two <= 0)) {
            continue;
        }
        const bool oneIsBetter = kTable.at(row).higherIsBetter ? one > two : one < two;
        m_filled.at(row) = {one == two || oneIsBetter, one == two || !oneIsBetter};
    }
}

void MarkerModel::Look()
{
    bool isNew = false;
    for (std::size_t row = 0; row < kRows; ++row) {
        for (std::size_t system = 0; system < 2; ++system) {
            const QString text = m_labels.at(row).at(system)->text();
            isNew = isNew || text != m_texts.at(row).at(system);
            m_texts.at(row).at(system) = text;
        }
    }
    for (const engine::SystemId system : engine::kBothSystems) {
        const engine::SystemResults results = Computed(m_systems.Results[system]);
        isNew = isNew || (results != m_results[system] && results != engine::SystemResults());
        m_results[system] = results;
    }
    if (isNew) {
        Compare();
    }
}

std::optional<std::string> MarkerModel::Check()
{
    Look();
    for (std::size_t row = 0; row < kRows; ++row) {
        for (std::size_t system = 0; system < 2; ++system) {
            const QWidget* shape = m_shapes.at(row).at(system);
            const bool expected = m_filled.at(row).at(system);
            if (shape->property("filled").toBool() != expected) {
                return shape->objectName().toStdString() + (expected ? " is empty" : " is filled") + " beside " +
                       m_texts.at(row).at(0).toStdString() + " and " + m_texts.at(row).at(1).toStdString();
            }
            const Pair& pair = m_filled.at(row);
            const QString better =
                pair[0] && pair[1] ? QStringLiteral("equal") : QStringLiteral("System %1 better").arg(system + 1);
            if (shape->accessibleName() != (expected ? better : QString())) {
                return shape->objectName().toStdString() + " is called \"" + shape->accessibleName().toStdString() +
                       "\"";
            }
        }
    }
    return std::nullopt;
}

} // namespace quillon::test
