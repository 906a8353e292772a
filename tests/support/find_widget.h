#pragma once

#include <QObject>
#include <QStringList>

#include <stdexcept>

namespace quillon::test {

/// Finds the one child of a window by its object name.
/// @throws std::runtime_error naming all children there are of the type, so that a miss explains itself.
template <class T>
T& Find(const QObject& window, const QString& name)
{
    if (T* found = window.findChild<T*>(name)) {
        return *found;
    }
    QStringList there;
    for (const T* child : window.findChildren<T*>()) {
        there << child->objectName();
    }
    there.sort();
    throw std::runtime_error("no \"" + name.toStdString() +
                             "\" among: " + there.join(QStringLiteral(", ")).toStdString());
}

} // namespace quillon::test
