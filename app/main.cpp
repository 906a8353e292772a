#include "app/dialogs.h"
#include "engine/records.h"
#include "store/catalogue.h"
#include "store/program_folder.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/desktop_hooks.h"
#include "ui/platform/message_notifier.h"
#include "ui/platform/printers_cups.h"
#include "ui/platform/shell.h"
#include "ui/platform/single_instance.h"
#include "ui/widgets/quillon_style.h"

#include <QApplication>

#include <memory>

int main(int argc, char* argv[])
{
    using namespace quillon;

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillon"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));

    const store::ProgramFolder folder(QApplication::applicationFilePath().toStdString());
    const ui::SingleInstance instance(folder.Path());
    if (instance.IsSecondCopy()) {
        return 0;
    }
    ui::QuillonStyle::Install(application);

    engine::AntennaSystems systems;
    const auto store = std::make_shared<store::ProfileStore>();
    const store::Catalogue catalogue(folder, store);
    ui::DesktopHooks hooks;
    ui::MessageNotifier notifier;
    ui::Quillon window({systems, hooks, notifier, catalogue});
    QObject::connect(&window, &ui::Quillon::Unloaded, &application, &QApplication::quit, Qt::QueuedConnection);
    notifier.SetOwner(&window);
    ui::CupsPrinters printers;
    ui::DesktopShell shell;
    const Dialogs dialogs({window, folder, *store, notifier, printers, shell});
    window.Load();
    window.show();
    return QApplication::exec();
}
