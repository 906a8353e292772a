#pragma once

#include "tests/looks/program_on_show.h"

#include <QWidget>

#include <functional>
#include <string>

namespace quillon::test {

/// What is done with a window that stands open. @param view  the window and what it shows, fit for a file name.
using Visit = std::function<void(const std::string& view, QWidget& window)>;

/// Opens every window of the program in every state that looks different, menus, lists and tool tips among them, and
/// visits each.
class Tour
{
public:
    explicit Tour(Visit visit);

    void Run();

private:
    void Visited(const std::string& view, QWidget& window);
    /// Does what opens a dialog and waits for its end; works on it meanwhile, and closes it.
    static void WhileOpen(const std::function<void()>& open, const std::function<void(QWidget&)>& work);
    /// As WhileOpen, for what a command opens; that is visited.
    void Give(ui::Command command, const std::string& view);

    void Splash();
    void MainWindow();
    void Menus();
    void ToolTip(QWidget& control, const std::string& view);
    void Messages();
    void SaveAndLoad();
    void Print();
    void Editor();
    void EditorAtWork(QWidget& editor);
    void Table();
    void Help();

    Visit m_visit;
    std::unique_ptr<ProgramOnShow> m_program;
};

} // namespace quillon::test
