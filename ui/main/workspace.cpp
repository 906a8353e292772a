#include "ui/main/workspace.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"

namespace quillon::ui {

Workspace::Workspace(engine::AntennaSystems& systems, engine::Calculations& calculations,
                     const store::Catalogue& catalogue, engine::Notifier& notifier, const QLocale& locale)
    : m_systems(systems)
    , m_calculations(calculations)
    , m_catalogue(catalogue)
    , m_notifier(notifier)
    , m_locale(locale)
    , m_separator(m_locale.decimalPoint().toStdString())
{
}

void Workspace::RefreshData(engine::SystemId system)
{
    m_calculations.RefreshData(Number(system));
    if (!(Data(system) == m_saved[system])) {
        SetSavedFlags(engine::kFalse);
    }
}

void Workspace::SetSavedFlags()
{
    m_saved = m_systems.Data;
    SetSavedFlags(engine::kTrue);
}

void Workspace::SetSavedFlags(engine::Boolean value)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        State(system).SetFlag(engine::kSavedFlag, value);
    }
}

bool Workspace::Attempt(engine::SystemId system, const std::function<void()>& change)
{
    const engine::SystemData data = Data(system);
    const engine::SystemResults results = Results(system);
    try {
        change();
        return true;
    } catch (const engine::ArithmeticError&) {
        Data(system) = data;
        Results(system) = results;
        return false;
    }
}

QString Workspace::Masked(float value, std::string_view mask) const
{
    return QString::fromStdString(engine::FormatWithMask(value, mask, m_separator));
}

QString Workspace::Shortest(float value) const
{
    return QString::fromStdString(engine::ShortestText(value, m_separator));
}

} // namespace quillon::ui
