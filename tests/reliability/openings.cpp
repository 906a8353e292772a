// Opens and closes each dialog many times and tells how much memory each opening leaves behind.
//
// quillon_reliability_openings [--count OPENINGS] [--seed SEED] [--only DIALOG]
//
// The measure is the heap in use and the number of widgets, after a warm-up and after that many openings more. Caches
// of fonts, glyphs and styles fill during the warm-up; what an opening leaves behind beyond that grows without end. Qt
// itself keeps some 96 bytes whenever a window that was hidden is shown again: what an empty dialog of its own leaves
// behind is measured first and taken off. Objects of the heap begin at 32 bytes, so that an opening that leaks a single
// one is found at half of that; and as some blocks come and go with what the caches hold just now, a fixed slack is
// allowed for all openings together.
#include "tests/reliability/monkey_program.h"
#include "ui/startup/splash.h"
#include "ui/widgets/quillon_style.h"

#include <QApplication>
#include <QDialog>
#include <QLocale>
#include <QTimer>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <limits>
#include <malloc.h>
#include <string>
#include <vector>

namespace quillon::test {
namespace {

constexpr int kWarmUp = 200;
constexpr double kMostPerOpening = 16;
constexpr double kSlack = 32768;

struct Options
{
    int count = 200;
    unsigned seed = 1;
    std::string only; ///< name of the one dialog that is opened; empty for all
};

/// A dialog, and how it is opened and closed again.
struct Opening
{
    const char* name;
    std::function<void()> openAndClose;
    bool isMadeAnew = false; ///< at each opening; else one window serves them all
};

Options Read(int argc, char* argv[])
{
    Options options;
    for (int place = 1; place + 1 < argc; place += 2) {
        if (std::strcmp(argv[place], "--count") == 0) {
            options.count = std::stoi(argv[place + 1]);
        } else if (std::strcmp(argv[place], "--seed") == 0) {
            options.seed = static_cast<unsigned>(std::stoul(argv[place + 1]));
        } else if (std::strcmp(argv[place], "--only") == 0) {
            options.only = argv[place + 1];
        }
    }
    return options;
}

/// Handles everything that waits, deletions too.
void Settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

double HeapInUse()
{
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

/// Gives a command and closes the modal windows that it opens, one after the other.
void Give(ui::Quillon& window, ui::Command command)
{
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, &closing, [] {
        if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            modal->repaint();
            modal->reject();
        }
    });
    closing.start(0);
    emit window.CommandGiven(command);
}

void ShowHelp(ui::Quillon& window)
{
    emit window.CommandGiven(ui::Command::HelpContents);
    auto* help = window.findChild<QWidget*>(QStringLiteral("HelpWindow"));
    help->repaint();
    help->close();
}

void ShowSplash()
{
    ui::Splash splash([] {}, {});
    splash.Open();
    splash.repaint();
    splash.close();
}

std::vector<Opening> AllDialogs(ui::Quillon& window)
{
    const auto command = [&window](ui::Command given) { return [&window, given] { Give(window, given); }; };
    return {
        {"save", command(ui::Command::SaveSystem)},         {"load", command(ui::Command::LoadSystem)},
        {"print", command(ui::Command::PrintReport)},       {"editor", command(ui::Command::EditAntennas)},
        {"table", command(ui::Command::ShowDBTable), true}, {"About", command(ui::Command::About)},
        {"help", [&window] { ShowHelp(window); }},          {"splash", [] { ShowSplash(); }, true},
    };
}

/// @param usual  what Qt keeps of each opening of a dialog, bytes
/// @return what this dialog's openings leave behind beyond that, in all, bytes.
double Measure(const Opening& dialog, int count, double usual)
{
    const auto open = [&dialog](int times) {
        for (int time = 0; time < times; ++time) {
            dialog.openAndClose();
            Settle();
        }
    };
    open(kWarmUp);
    const double before = HeapInUse();
    const auto widgets = QApplication::allWidgets().size();
    open(count);
    const double growth = HeapInUse() - before - usual * count;
    const auto more = QApplication::allWidgets().size() - widgets;
    std::cout << dialog.name << ": " << growth << " bytes and " << more << " widgets more after " << count
              << " openings, " << growth / count << " bytes each" << std::endl;
    return more > 0 ? std::numeric_limits<double>::infinity() : growth;
}

/// What Qt keeps of each opening of a dialog, bytes.
double MeasureQt(ui::Quillon& window, int count)
{
    QDialog bare(&window);
    const auto openAndClose = [&bare] {
        QTimer::singleShot(0, &bare, &QDialog::reject);
        bare.exec();
    };
    return Measure({"an empty dialog", openAndClose}, count, 0) / count;
}

int RunOpenings(const Options& options)
{
    const ProgramFiles files;
    WholeProgram program(files.Folder(), options.seed);
    program.Show();
    Settle();
    int growing = 0;
    std::vector<Opening> dialogs = AllDialogs(program.Window());
    if (!options.only.empty()) {
        std::erase_if(dialogs, [&](const Opening& dialog) { return dialog.name != options.only; });
    }
    const double usual = MeasureQt(program.Window(), options.count);
    for (const Opening& dialog : dialogs) {
        if (Measure(dialog, options.count, dialog.isMadeAnew ? 0 : usual) > kSlack + kMostPerOpening * options.count) {
            std::cout << dialog.name << " grows\n";
            ++growing;
        }
    }
    std::cout << dialogs.size() << " dialogs x " << options.count << " openings, "
              << (growing == 0 ? std::string("0 KB growth per opening") : std::to_string(growing) + " of them grow")
              << std::endl;
    return growing == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace quillon::test

int main(int argc, char* argv[])
{
    using namespace quillon;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    ui::QuillonStyle::Install(application);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return test::RunOpenings(test::Read(argc, argv));
}
