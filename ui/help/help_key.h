#pragma once

#include <QObject>

class QWidget;

namespace quillon::ui {

/// Asks for help when F1 is pressed in one of the program's windows, or in a message box above it. Filters the events
/// of the application.
class HelpKey : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// @param context  number of the window's topic
    void Asked(int context);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillon::ui
