#include "ui/main/menu_bar.h"

#include <QMenu>
#include <QMenuBar>

namespace quillon::ui {

namespace {

void AddEntry(QMenu& menu, const MenuEntry& entry, const std::function<void(Command)>& give)
{
    if (entry.caption == nullptr) {
        menu.addSeparator()->setObjectName(QString::fromLatin1(entry.name));
        return;
    }
    QAction* action = menu.addAction(QString::fromLatin1(entry.caption));
    action->setObjectName(QString::fromLatin1(entry.name));
    action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(entry.shortcuts)));
    QObject::connect(action, &QAction::triggered, &menu, [give, &entry] { give(entry.command); });
}

} // namespace

void FillMenuBar(QMenuBar& bar, const std::function<void(Command)>& give)
{
    for (const Menu& menu : kMenus) {
        QMenu* added = bar.addMenu(QString::fromLatin1(menu.caption));
        added->setObjectName(QString::fromLatin1(menu.name));
        for (const MenuEntry& entry : menu.entries) {
            AddEntry(*added, entry, give);
        }
    }
}

} // namespace quillon::ui
