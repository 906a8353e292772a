#include "tests/reliability/monkey_run.h"

#include "tests/reliability/monkey_windows.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimerEvent>

#include <chrono>
#include <iostream>

namespace quillon::test {

namespace {

using std::chrono_literals::operator""ms;

/// Events delivered at once while no dialog opens or closes: the desktop, too, hands over what has gathered.
constexpr int kLargestBurst = 6;
/// The search for markup goes through all widgets, so it is made only now and then, and for each new window.
constexpr long kMarkupPeriod = 256;
constexpr int kLivesPerClosing = 6;

} // namespace

MonkeyRun::MonkeyRun(const ProgramFiles& files, Journal& journal, unsigned seed, long count)
    : m_folder(files.Folder())
    , m_journal(journal)
    , m_seed(seed)
    , m_count(count)
    , m_gestures(seed, OutsideProgram(QUILLON_DATA_FOLDER, files.Path()))
    , m_files(files.Path())
{
}

bool MonkeyRun::Run()
{
    while (!IsOver()) {
        StartProgram();
        QApplication::exec();
        m_markers.reset();
        m_shown.reset();
        m_splash.reset();
        m_program.reset();
    }
    if (const std::string different = m_files.CompareBytes(); !m_isBroken && !different.empty()) {
        std::cout << "seed " << m_seed << ": " << different << std::flush;
        m_isBroken = true;
    }
    m_journal.isBroken = m_isBroken;
    return !m_isBroken;
}

void MonkeyRun::StartProgram()
{
    m_splash.emplace([this] { ShowMainWindow(); }, ui::Splash::Waits{20ms, 40ms});
    m_splash->Open();
    ScheduleNext();
}

void MonkeyRun::ShowMainWindow()
{
    m_program.emplace(m_folder, m_seed);
    ui::Quillon& window = m_program->Window();
    connect(&window, &ui::Quillon::Unloaded, this, &MonkeyRun::MainWindowUnloaded, Qt::QueuedConnection);
    m_program->Show();
    // In every other run the figures that can be typed are in use, which are hidden otherwise.
    if (m_seed % 4 >= 2) {
        window.findChild<QWidget*>(QStringLiteral("FrameCoaxLoss"))->show();
        window.findChild<QWidget*>(QStringLiteral("FrameAntennaGain"))->show();
    }
    const QChar separator = window.locale().decimalPoint().front();
    m_shown.emplace(window, m_program->Systems(), separator);
    m_markers.emplace(window, m_program->Systems(), separator);
    m_program->Hooks().atStep = [this] { m_markers->Look(); };
    m_program->Hooks().atEndOfEvents = [this] {
        if (std::exchange(m_isLate, false)) {
            ScheduleNext();
        }
    };
}

// Closing the main window ends the program, which takes long to start: so mostly the window just comes back.
void MonkeyRun::MainWindowUnloaded()
{
    if (m_gestures.Random()() % kLivesPerClosing == 0) {
        QApplication::exit();
    } else {
        m_program->Window().show();
        m_program->Window().activateWindow();
    }
}

/// A timer of its own for each step: one whose handler is still running, in a dialog's event loop, would not fire.
void MonkeyRun::ScheduleNext()
{
    if (m_timer != 0) {
        killTimer(m_timer);
    }
    m_timer = startTimer(0);
}

void MonkeyRun::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    m_timer = 0;
    if (m_program && m_program->Hooks().LetsEventsRun()) {
        m_isLate = true;
        return;
    }
    ScheduleNext();
    const long step = ++m_steps;
    for (int count = 1 + static_cast<int>(m_gestures.Random()() % kLargestBurst); count > 0; --count) {
        if (const auto wrong = Look()) {
            std::cout << "seed " << m_seed << ", event " << m_journal.Events() << ": " << *wrong
                      << ", in front: " << (m_front != nullptr ? NameOf(*m_front).toStdString() : "nothing") << '\n'
                      << std::flush;
            m_isBroken = true;
        }
        if (IsOver()) {
            QApplication::exit();
            return;
        }
        const bool isAnswered = Deliver();
        if (isAnswered || m_steps != step) {
            return; // the display comes first, or further events came in a dialog that this one opened
        }
    }
}

/// @return whether the display answers the event.
bool MonkeyRun::Deliver()
{
    const MonkeyEvent event = m_gestures.Next();
    m_journal.Note(event.what);
    NoteCommand();
    event.deliver();
    if (event.isFromOutside) {
        m_files.Accept();
    }
    return event.isAnswered;
}

/// The two commands that a key gives: a new maker and a new model, typed into their boxes.
void MonkeyRun::NoteCommand()
{
    // The window's own focus: keys get there, too, while its list is open or another window counts as the active one.
    const auto* box =
        m_editor != nullptr && m_editor->isVisible() ? qobject_cast<QLineEdit*>(m_editor->focusWidget()) : nullptr;
    if (box == nullptr) {
        return;
    }
    if (box->objectName() == u"txtAntennaBrand") {
        m_files.Permit({"Antennas/" + box->text().toStdString() + ".DAT"});
    } else if (box->objectName() == u"txtAntennaModel") {
        const auto* makers = m_editor->findChild<ui::CatalogueListBox*>(QStringLiteral("cboAntennaMakers"));
        m_files.Permit({"Antennas/" + makers->ChosenName().toStdString() + ".DAT", "Antennas/ANTENNAS.ZEP"});
    }
}

void MonkeyRun::MeetFrontWindow()
{
    QWidget* front = FrontWindow();
    if (front == m_front) {
        return;
    }
    m_front = front;
    if (front == nullptr || front->property("met").toBool()) {
        return;
    }
    front->setProperty("met", true);
    if (front->objectName() == u"LoadSystem") {
        m_loadDialog = front;
    } else if (front->objectName() == u"SaveSystem") {
        auto* save = front->findChild<QPushButton*>(QStringLiteral("cmdSave"));
        connect(save, &QPushButton::released, this, [this] { m_files.Permit({"QuillonSystems.dat"}); });
    } else if (front->objectName() == u"EditAntennas") {
        m_editor = front;
        auto* save = front->findChild<QPushButton*>(QStringLiteral("cmdSave"));
        const auto* makers = front->findChild<ui::CatalogueListBox*>(QStringLiteral("cboAntennaMakers"));
        connect(save, &QPushButton::released, this, [this, makers] {
            m_files.Permit({"Antennas/" + makers->ChosenName().toStdString() + ".DAT", "Antennas/ANTENNAS.ZEP"});
        });
    } else if (front->objectName() == u"QuestionBox") {
        MeetQuestion(*front);
    }
}

/// A command that is taken back may write nothing.
void MonkeyRun::MeetQuestion(QWidget& box)
{
    connect(qobject_cast<QMessageBox*>(&box), &QDialog::finished, this, [this](int answer) {
        if (answer != QMessageBox::Ok && answer != QMessageBox::Yes) {
            m_files.Revoke();
        }
    });
}

/// Whether a command is at a message or question. It goes on only when that box is destroyed: one that has been
/// answered is out of sight while further events of the same burst come.
bool MonkeyRun::IsAsking()
{
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        m_message = box;
    }
    return m_message != nullptr;
}

/// Whether a pair may be loaded during the next event. The click that an access key begins ends a moment later, when
/// its window may be closed already.
bool MonkeyRun::IsLoading() const
{
    return m_loadDialog != nullptr &&
           (m_loadDialog->isVisible() || m_loadDialog->findChild<QPushButton*>(QStringLiteral("cmdLoad"))->isDown());
}

std::optional<std::string> MonkeyRun::Look()
{
    MeetFrontWindow();
    if (auto wrong = m_files.Check()) {
        return wrong;
    }
    const bool isAsking = IsAsking();
    const bool isAnswered = std::exchange(m_wasAsking, isAsking) && !isAsking;
    if (m_files.IsPermitted() && !isAsking) {
        m_files.Revoke();
    }
    if (auto wrong = WindowOffScreen()) {
        return wrong;
    }
    if (m_journal.Events() % kMarkupPeriod == 0) {
        if (auto wrong = TextAsMarkup()) {
            return wrong;
        }
    }
    if (!m_program || !m_shown) {
        return std::nullopt;
    }
    const bool isLoading = IsLoading();
    // What an answer held up, a key that brought the message, is through together with the events that came meanwhile.
    if (auto wrong = m_shown->Check(isLoading || std::exchange(m_wasLoading, isLoading), isAnswered)) {
        return wrong;
    }
    m_wasLoading = isLoading;
    return m_markers->Check();
}

} // namespace quillon::test
