#pragma once

#include "ui/platform/shell.h"
#include "ui/startup/about_texts.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace quillon::ui {

class LinkLabel;
class QuietLabel;

/// Shows which program runs, where, and on which system, and offers to write to the maker.
class About : public QDialog
{
    Q_OBJECT

public:
    /// @param ask    how the system is asked for its version, anew at each opening
    /// @param shell  outlives this object.
    About(ProgramInfo program, SystemVersionCall ask, Shell& shell, QWidget* parent = nullptr);

    /// Prepares the dialog and shows it until it is closed.
    void Open();

    /// The opening steps: asks the system and writes the lines.
    void Prepare();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void NameControls();
    void LayOut();
    void cmdSendEMail_Click();
    void lblEMail_Click();

    ProgramInfo m_program;
    SystemVersionCall m_ask;
    Shell& m_shell;
    SystemInfo m_system;
    QLabel* m_version;
    QLabel* m_appInfo;
    QuietLabel* m_path;
    LinkLabel* m_mail;
    QLabel* m_comments;
    QLabel* m_copyright;
    QPushButton* m_sendMail;
    QPushButton* m_close;
};

} // namespace quillon::ui
