#pragma once

#include "engine/calculations.h"
#include "engine/notifier.h"
#include "store/catalogue.h"

#include <QLocale>
#include <QString>

#include <functional>
#include <string_view>

namespace quillon::ui {

/// What the frames of the main window work on. One object for the window; it outlives the frames.
class Workspace
{
public:
    Workspace(engine::AntennaSystems& systems, engine::Calculations& calculations, const store::Catalogue& catalogue,
              engine::Notifier& notifier, const QLocale& locale);

    [[nodiscard]] engine::SystemData& Data(engine::SystemId system) { return m_systems.Data[system]; }

    [[nodiscard]] engine::SystemResults& Results(engine::SystemId system) { return m_systems.Results[system]; }

    [[nodiscard]] engine::SystemState& State(engine::SystemId system) { return m_systems.State[system]; }

    /// Figures of the cable loaded last, for whichever system.
    [[nodiscard]] std::array<float, 9>& CoaxSpec() { return m_systems.CoaxSpec; }

    /// The model loaded last, for whichever system.
    [[nodiscard]] store::BandTable& Bands() { return m_bands; }

    [[nodiscard]] const store::Catalogue& Catalogue() const { return m_catalogue; }

    [[nodiscard]] engine::Notifier& Notifier() { return m_notifier; }

    [[nodiscard]] const QLocale& Locale() const { return m_locale; }

    void RefreshData(engine::SystemId system);

    /// Notes that both systems are saved as they are; it holds until an input of either changes.
    void SetSavedFlags();

    /// Runs a change of a system's inputs. When it cannot be computed with, the system's inputs and results are put
    /// back as they were. @return whether the change stands.
    [[nodiscard]] bool Attempt(engine::SystemId system, const std::function<void()>& change);

    /// Number texts as boxes and labels show them, with the locale's separator.
    [[nodiscard]] QString Masked(float value, std::string_view mask) const;
    [[nodiscard]] QString Shortest(float value) const;

private:
    void SetSavedFlags(engine::Boolean value);

    engine::AntennaSystems& m_systems;
    engine::Calculations& m_calculations;
    const store::Catalogue& m_catalogue;
    engine::Notifier& m_notifier;
    store::BandTable m_bands;
    engine::PerSystem<engine::SystemData> m_saved; ///< what the saved flags speak of
    QLocale m_locale;
    std::string m_separator;
};

} // namespace quillon::ui
