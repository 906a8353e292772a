#include "ui/main/menu_bar.h"

#include <QMenu>
#include <QMenuBar>

namespace quillon::ui {

void FillMenuBar(QMenuBar& bar, const std::function<void(Command)>& give)
{
    QMenu* program = bar.addMenu(QStringLiteral("&Program"));
    program->setObjectName(QStringLiteral("mnuProgram"));
    for (const MenuEntry& entry : kProgramMenu) {
        QAction* action = program->addAction(QString::fromLatin1(entry.caption));
        action->setObjectName(QString::fromLatin1(entry.name));
        action->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
        QObject::connect(action, &QAction::triggered, program, [give, &entry] { give(entry.command); });
    }
}

} // namespace quillon::ui
