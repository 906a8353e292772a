// A monkey at the keyboard and the mouse: random events over all windows of the whole program, with a look at what has
// to hold after each of them.
//
// quillon_reliability_monkey [--count EVENTS] [--seed SEED]
//
// The events come in runs of a fixed length, each with the program folder as shipped, a process and a seed of its own:
// SEED, SEED + 1, ... A finding names its run's seed and the number of the event; that run alone is repeated by
// --seed THAT_SEED --count THAT_NUMBER, as far as timers let it.
#include "tests/reliability/monkey_journal.h"
#include "tests/reliability/monkey_program.h"
#include "tests/reliability/monkey_run.h"
#include "tests/reliability/monkey_watchdog.h"
#include "ui/widgets/quillon_style.h"

#include <QApplication>
#include <QLocale>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <new>
#include <string>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {
namespace {

constexpr long kRunLength = 10000;
constexpr long kReportPeriod = 25 * kRunLength;
constexpr int kMostFindings = 20;

struct Options
{
    long count = 100000;
    unsigned seed = 1;
};

struct Figures
{
    long events = 0;
    int crashes = 0;
    int hangs = 0;
    int broken = 0;

    [[nodiscard]] int Findings() const { return crashes + hangs + broken; }
};

Options Read(int argc, char* argv[])
{
    Options options;
    for (int place = 1; place + 1 < argc; place += 2) {
        if (std::strcmp(argv[place], "--count") == 0) {
            options.count = std::stol(argv[place + 1]);
        } else if (std::strcmp(argv[place], "--seed") == 0) {
            options.seed = static_cast<unsigned>(std::stoul(argv[place + 1]));
        }
    }
    return options;
}

/// No display is needed. The screens are those of small laptops.
void ChooseScreen(const ProgramFiles& files, unsigned seed)
{
    const std::filesystem::path settings = files.Path() / "Help" / "screen.json";
    std::ofstream(settings)
        << R"({"windowFrameMargins": false, "screens": [{"name": "monkey", "x": 0, "y": 0, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1, )"
        << (seed % 2 == 0 ? R"("width": 1280, "height": 720)" : R"("width": 1024, "height": 600)") << "}]}";
    qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + settings.string()).c_str());
}

/// A warning of Qt ends the run as a crash does; but the display that is none says at every turn what it lacks.
void TellWarning(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    // Of a place below the last line of a text, Qt's own hit test tells one that the text does not have.
    const bool isHarmless = text.startsWith(QStringLiteral("QTextCursor::setPosition"));
    if (!isHarmless && !text.startsWith(QStringLiteral("This plugin does not support")) &&
        !text.startsWith(QStringLiteral("QStandardPaths"))) {
        std::cout << "Qt warns: " << text.toStdString() << std::endl;
        std::abort();
    }
}

/// What the process of one run does. @return its exit code.
int RunMonkey(const ProgramFiles& files, Journal& journal, unsigned seed, long count)
{
    ChooseScreen(files, seed);
    qInstallMessageHandler(TellWarning);
    QLocale::setDefault(seed % 3 == 0 ? QLocale(QLocale::German) : QLocale::c());
    int argc = 1;
    std::string name = "Quillon";
    char* argv[] = {name.data(), nullptr};
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    ui::QuillonStyle::Install(application);
    const Watchdog watchdog(journal);
    return MonkeyRun(files, journal, seed, count).Run() ? EXIT_SUCCESS : EXIT_FAILURE;
}

Journal& NewJournal()
{
    void* memory = ::mmap(nullptr, sizeof(Journal), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::bad_alloc();
    }
    return *new (memory) Journal;
}

std::string Ending(int status)
{
    return WIFSIGNALED(status) ? std::string("signal ") + ::strsignal(WTERMSIG(status))
                               : "exit code " + std::to_string(WEXITSTATUS(status));
}

void CountFinding(Figures& figures, const Journal& journal, unsigned seed, int status)
{
    if (journal.isHung) {
        ++figures.hangs;
        std::cout << "seed " << seed << ", event " << journal.Events() << ": takes longer than 2 s\n";
    } else if (journal.isBroken) {
        ++figures.broken;
    } else {
        ++figures.crashes;
        std::cout << "seed " << seed << ", event " << journal.Events() << ": crash, " << Ending(status) << '\n';
    }
    std::cout << "  the last events:\n"
              << journal.LastEvents() << "  again with --seed " << seed << " --count " << journal.Events() << '\n'
              << std::flush;
}

void RunOnce(Figures& figures, unsigned seed, long count)
{
    const ProgramFiles files;
    Journal& journal = NewJournal();
    std::cout << std::flush;
    const pid_t child = ::fork();
    if (child == 0) {
        std::exit(RunMonkey(files, journal, seed, count)); // NOLINT(concurrency-mt-unsafe)
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    figures.events += journal.Events();
    if (status != 0) {
        CountFinding(figures, journal, seed, status);
    }
    ::munmap(&journal, sizeof(Journal));
}

} // namespace
} // namespace quillon::test

int main(int argc, char* argv[])
{
    using namespace quillon::test;
    const Options options = Read(argc, argv);
    // The order of hash tables must not differ from run to run.
    qputenv("QT_HASH_SEED", "0");
    Figures figures;
    for (unsigned seed = options.seed; figures.events < options.count && figures.Findings() < kMostFindings; ++seed) {
        RunOnce(figures, seed, std::min(kRunLength, options.count - figures.events));
        if (figures.events % kReportPeriod == 0) {
            std::cout << figures.events << " events so far" << std::endl;
        }
    }
    std::cout << figures.events << " events, " << figures.crashes << " crashes, " << figures.hangs
              << " hangs over 2 s, " << figures.broken << " broken invariants" << std::endl;
    return figures.Findings() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
