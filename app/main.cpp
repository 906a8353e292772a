#include "app/program.h"
#include "app/program_icon.h"
#include "app/unwritable_folder.h"
#include "store/program_folder.h"
#include "ui/platform/message_notifier.h"
#include "ui/platform/single_instance.h"
#include "ui/startup/splash.h"
#include "ui/widgets/quillon_style.h"

#include <QApplication>

#include <optional>

int main(int argc, char* argv[])
{
    using namespace quillon;

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillon"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    QApplication::setWindowIcon(ProgramIcon());
    // By its name a desktop that shows no icons of windows finds the one of the program.
    QGuiApplication::setDesktopFileName(QStringLiteral(QUILLON_DESKTOP_ID));
    // A message can be the only window and be closed while the main window is still to come.
    QApplication::setQuitOnLastWindowClosed(false);

    const store::ProgramFolder folder(QApplication::applicationFilePath().toStdString());
    const ui::SingleInstance instance(folder.Path());
    if (instance.IsSecondCopy()) {
        return 0;
    }
    ui::QuillonStyle::Install(application);
    store::FileCalls calls;
    ui::MessageNotifier notifier;
    TellUnwritableFolder(calls, folder, notifier);

    std::optional<Program> program;
    ui::Splash splash([&program, &folder] { program.emplace(folder).Show(); }, {});
    splash.Open();
    return QApplication::exec();
}
