#pragma once

#include "tests/reliability/monkey_files.h"
#include "tests/reliability/monkey_gestures.h"
#include "tests/reliability/monkey_journal.h"
#include "tests/reliability/monkey_markers.h"
#include "tests/reliability/monkey_program.h"
#include "tests/reliability/monkey_shown.h"
#include "ui/startup/splash.h"

#include <QObject>
#include <QPointer>

#include <optional>
#include <string>

namespace quillon::test {

/// A monkey at the program: delivers its events one by one, whatever event loop runs, and looks after each of them
/// whether all still holds that has to.
class MonkeyRun : public QObject
{
public:
    MonkeyRun(const ProgramFiles& files, Journal& journal, unsigned seed, long count);

    /// Delivers all events, in as many lives of the program as it takes. @return whether nothing was broken.
    [[nodiscard]] bool Run();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void StartProgram();
    void ShowMainWindow();
    void MainWindowUnloaded();
    void ScheduleNext();
    bool Deliver();
    void NoteCommand();
    void MeetFrontWindow();
    void MeetQuestion(QWidget& box);
    [[nodiscard]] bool IsAsking();
    [[nodiscard]] bool IsLoading() const;
    [[nodiscard]] std::optional<std::string> Look();

    [[nodiscard]] bool IsOver() const { return m_isBroken || m_journal.Events() >= m_count; }

    store::ProgramFolder m_folder;
    Journal& m_journal;
    unsigned m_seed;
    long m_count;
    Gestures m_gestures;
    FileWatch m_files;
    std::optional<WholeProgram> m_program;
    std::optional<ui::Splash> m_splash;
    std::optional<ShownFigures> m_shown;
    std::optional<MarkerModel> m_markers;
    QPointer<QWidget> m_front;      ///< the window in front at the last look
    QPointer<QWidget> m_loadDialog; ///< once it has been seen
    QPointer<QWidget> m_editor;     ///< once it has been seen
    QPointer<QWidget> m_message;    ///< the last message or question that was in front
    bool m_wasLoading = false;
    bool m_wasAsking = false;
    bool m_isBroken = false;
    bool m_isLate = false; ///< an event was due while a computation let events run
    int m_timer = 0;
    long m_steps = 0;
};

} // namespace quillon::test
