#include "ui/widgets/object_names.h"

namespace quillon::ui {

QString IndexedName(const QString& name, int index)
{
    return QStringLiteral("%1(%2)").arg(name, QString::number(index));
}

QString NameFor(const QString& name, engine::SystemId system)
{
    return IndexedName(name, Number(system));
}

QString SpelledName(const QString& pattern, engine::SystemId system)
{
    return pattern.arg(system == engine::SystemId::One ? QStringLiteral("One") : QStringLiteral("Two"));
}

int PairIndex(engine::SystemId system, int part)
{
    return 2 * (Number(system) - 1) + part;
}

} // namespace quillon::ui
