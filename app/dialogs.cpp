#include "app/dialogs.h"

#include "app/closing.h"
#include "ui/help/help_topics.h"
#include "ui/platform/addresses.h"
#include "ui/platform/question_box.h"
#include "ui/table/show_table.h"

#include <QApplication>
#include <QScopeGuard>
#include <QUrl>

#include <utility>

namespace quillon {

Dialogs::Dialogs(const DialogParts& parts)
    : m_parts(parts)
    , m_readWrite(parts.folder, parts.store, parts.notifier)
{
    connect(&parts.window, &ui::Quillon::CommandGiven, this, &Dialogs::Show);
    connect(&m_helpKey, &ui::HelpKey::Asked, this, &Dialogs::ShowHelp);
    QCoreApplication::instance()->installEventFilter(&m_helpKey);
}

void Dialogs::Show(ui::Command command)
{
    // The click that an access key begins ends a moment later, when a dialog may be open that came in between.
    if (QApplication::activeModalWidget() != nullptr) {
        return;
    }
    // One that has just been closed returns only when all that was typed and clicked together with that is through.
    if (m_isShowing) {
        m_next = command;
        return;
    }
    m_isShowing = true;
    const auto isOver = qScopeGuard([this] {
        m_isShowing = false;
        m_next.reset();
    });
    CarryOut(command);
    while (const std::optional<ui::Command> next = std::exchange(m_next, std::nullopt)) {
        CarryOut(*next);
    }
}

void Dialogs::CarryOut(ui::Command command)
{
    switch (command) {
    case ui::Command::SaveSystem:
        return SaveSystem().Open();
    case ui::Command::LoadSystem:
        return LoadSystem().Open();
    case ui::Command::PrintReport:
        Report().SetReport();
        return PrintOut().Open();
    case ui::Command::PrintSystem:
        // As given, the menu's entry prints the report as it was built last.
        return PrintOut().Open();
    case ui::Command::ShowDBTable:
        return ui::ShowTable(&m_parts.window).Open();
    case ui::Command::EditAntennas:
        return EditAntennas().Open();
    case ui::Command::About:
        return About().Open();
    case ui::Command::HelpContents:
        return ShowHelp(ui::kHelpOverview);
    case ui::Command::Calculator:
        return m_parts.shell.StartCalculator();
    case ui::Command::QuillonOnline:
        return m_parts.shell.Open(QUrl(ui::kProductPage.toString()));
    case ui::Command::Tarvel:
        return m_parts.shell.Open(QUrl(ui::kMakerPage.toString()));
    case ui::Command::Close:
        return Close();
    }
}

void Dialogs::Close()
{
    if (!HasUnsavedPair(m_parts.window.Systems())) {
        m_parts.window.close();
        return;
    }
    switch (ui::AskYesNoCancel(&m_parts.window, QStringLiteral("A system has been configured. Do you want to save it?"),
                               QStringLiteral("Save Configured System?"))) {
    case ui::Answer::Yes:
        return SaveSystem().OpenBeside();
    case ui::Answer::No:
        m_parts.window.close();
        return;
    case ui::Answer::Cancel:
        return;
    }
}

void Dialogs::ShowHelp(int context)
{
    // A document that is missing is nothing to stop anybody by.
    static_cast<void>(Help().ShowTopic(context));
}

ui::SaveSystem& Dialogs::SaveSystem()
{
    if (m_saveSystem == nullptr) {
        m_saveSystem =
            new ui::SaveSystem(m_parts.window, m_readWrite, m_parts.store, m_parts.notifier, &m_parts.window);
    }
    return *m_saveSystem;
}

ui::LoadSystem& Dialogs::LoadSystem()
{
    if (m_loadSystem == nullptr) {
        m_loadSystem =
            new ui::LoadSystem(m_parts.window, m_readWrite, m_parts.store, m_parts.notifier, &m_parts.window);
    }
    return *m_loadSystem;
}

ui::PrintSystemReport& Dialogs::Report()
{
    if (!m_report) {
        m_report = std::make_unique<ui::PrintSystemReport>(m_parts.window.Systems(), m_parts.notifier,
                                                           m_parts.window.locale());
    }
    return *m_report;
}

ui::PrintOut& Dialogs::PrintOut()
{
    if (m_printOut == nullptr) {
        m_printOut = new ui::PrintOut(Report(), m_parts.printers, m_parts.notifier, &m_parts.window);
    }
    return *m_printOut;
}

ui::EditAntennas& Dialogs::EditAntennas()
{
    if (m_editAntennas == nullptr) {
        m_editAntennas = new ui::EditAntennas(m_parts.window, m_parts.catalogue, m_parts.folder, m_parts.store,
                                              m_parts.notifier, &m_parts.window);
    }
    return *m_editAntennas;
}

ui::About& Dialogs::About()
{
    if (m_about == nullptr) {
        m_about =
            new ui::About(ui::ProgramInfo::OfThisProgram(), &ui::AskSystemVersion, m_parts.shell, &m_parts.window);
    }
    return *m_about;
}

ui::HelpWindow& Dialogs::Help()
{
    if (m_help == nullptr) {
        m_help = new ui::HelpWindow(m_parts.folder.HelpFile(), &m_parts.window);
    }
    return *m_help;
}

} // namespace quillon
