#include "tests/looks/tour.h"

#include "tests/support/find_widget.h"
#include "ui/platform/question_box.h"
#include "ui/startup/splash.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <utility>

namespace quillon::test {

namespace {

QPushButton& Button(const QWidget& window, const char* name)
{
    return Find<QPushButton>(window, QString::fromLatin1(name));
}

QWidget& OpenToolTip()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel") && window->isVisible()) {
            return *window;
        }
    }
    throw std::runtime_error("no tool tip");
}

} // namespace

Tour::Tour(Visit visit)
    : m_visit(std::move(visit))
{
}

void Tour::Run()
{
    Splash();
    m_program = std::make_unique<ProgramOnShow>();
    MainWindow();
    Menus();
    Messages();
    SaveAndLoad();
    Print();
    Editor();
    Table();
    Help();
    Give(ui::Command::About, "about");
    m_program.reset();
}

void Tour::Visited(const std::string& view, QWidget& window)
{
    Settle();
    m_visit(view, window);
}

void Tour::WhileOpen(const std::function<void()>& open, const std::function<void(QWidget&)>& work)
{
    QTimer::singleShot(0, [&work] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            throw std::runtime_error("no dialog is open");
        }
        work(*dialog);
        dialog->reject();
    });
    open();
}

void Tour::Give(ui::Command command, const std::string& view)
{
    WhileOpen([this, command] { emit m_program->Window().CommandGiven(command); },
              [this, &view](QWidget& dialog) { Visited(view, dialog); });
}

void Tour::Splash()
{
    ui::Splash splash([] {}, {});
    splash.Open();
    Visited("splash", splash);
}

void Tour::MainWindow()
{
    ui::Quillon& window = m_program->Window();
    Visited("main-start", window);
    auto& makers = Find<ui::CatalogueListBox>(window, QStringLiteral("cboSystemOneCoax(0)"));
    makers.showPopup();
    Visited("main-list", *makers.view()->window());
    makers.hidePopup();

    m_program->Choose(1, QStringLiteral("BELDEN/8267 RG-213"), QStringLiteral("HY-GAIN/TH7DX"),
                      QStringLiteral("20 Meters"));
    m_program->Choose(2, QStringLiteral("SSB-ELECTRONIC/ECOFLEX 10"), QStringLiteral("OPTIBEAM/OB16-5"),
                      QStringLiteral("20 Meters"));
    Visited("main-chosen", window);

    ProgramOnShow::Type(window, QStringLiteral("txtOutputPower(1)"), QStringLiteral("2500"));
    ProgramOnShow::Type(window, QStringLiteral("txtOutputPower(2)"), QStringLiteral("12..5"));
    for (const char* frame : {"FrameCoaxLoss", "FrameAntennaGain"}) {
        Find<QWidget>(window, QString::fromLatin1(frame)).show();
    }
    Visited("main-marked", window);
    ToolTip(Find<QWidget>(window, QStringLiteral("txtOutputPower(2)")), "tool-tip");
    for (const char* frame : {"FrameCoaxLoss", "FrameAntennaGain"}) {
        Find<QWidget>(window, QString::fromLatin1(frame)).hide();
    }
    ProgramOnShow::Type(window, QStringLiteral("txtOutputPower(2)"), QStringLiteral("100"));
    Settle();
}

void Tour::Menus()
{
    for (const QAction* action : m_program->Window().menuBar()->actions()) {
        QMenu* menu = action->menu();
        menu->popup({});
        menu->setActiveAction(menu->actions().first());
        Visited("menu-" + menu->objectName().toStdString(), *menu);
        menu->close();
    }
}

void Tour::ToolTip(QWidget& control, const std::string& view)
{
    QToolTip::showText(control.mapToGlobal(QPoint()), control.toolTip(), &control);
    Visited(view, OpenToolTip());
    QToolTip::hideText();
}

void Tour::Messages()
{
    const auto visit = [this](QWidget& box) { Visited("message", box); };
    WhileOpen(
        [this] {
            m_program->Notifier().Inform("The folder /home/operator/.local/share/quillon cannot be written. Quillon "
                                         "computes and prints all the same, but it cannot save systems or antennas "
                                         "there.",
                                         "Folder Cannot Be Written");
        },
        visit);
    Give(ui::Command::Close, "question");
}

void Tour::SaveAndLoad()
{
    const auto save = [this] { emit m_program->Window().CommandGiven(ui::Command::SaveSystem); };
    WhileOpen(save, [this](QWidget& dialog) {
        Visited("save", dialog);
        Button(dialog, "cmdSave").click();
        Visited("save-done", dialog);
    });
    Give(ui::Command::LoadSystem, "load");
}

void Tour::Print()
{
    const auto print = [this] { emit m_program->Window().CommandGiven(ui::Command::PrintReport); };
    WhileOpen(print, [this](QWidget& dialog) {
        Find<QPlainTextEdit>(dialog, QStringLiteral("txtNotes"))
            .setPlainText(QStringLiteral("Field day: the beam on the short mast, fed through the old cable."));
        Visited("print", dialog);
    });
}

void Tour::Editor()
{
    const auto edit = [this] { emit m_program->Window().CommandGiven(ui::Command::EditAntennas); };
    WhileOpen(edit, [this](QWidget& dialog) {
        Visited("editor-empty", dialog);
        EditorAtWork(dialog);
    });
}

void Tour::EditorAtWork(QWidget& editor)
{
    ProgramOnShow::Choose(editor, QStringLiteral("cboAntennaMakers"), QStringLiteral("HY-GAIN"));
    ProgramOnShow::Choose(editor, QStringLiteral("cboAntennaModels"), QStringLiteral("TH7DX"));
    Button(editor, "cmdEdit").click();
    Visited("editor-model", editor);
    ProgramOnShow::Type(editor, QStringLiteral("txtGainFigure(3)"), QStringLiteral("7.."));
    Button(editor, "cmdAddNewModel").click();
    ProgramOnShow::Type(editor, QStringLiteral("txtAntennaModel"), QStringLiteral("LONG BEAM"));
    Visited("editor-adding", editor);
}

void Tour::Table()
{
    const auto show = [this] { emit m_program->Window().CommandGiven(ui::Command::ShowDBTable); };
    WhileOpen(show, [this](QWidget& dialog) {
        Find<QTableWidget>(dialog, QStringLiteral("dBCalcTable")).selectRow(3);
        Visited("table", dialog);
    });
}

void Tour::Help()
{
    emit m_program->Window().CommandGiven(ui::Command::HelpContents);
    auto& help = Find<QWidget>(m_program->Window(), QStringLiteral("HelpWindow"));
    Visited("help", help);
    ProgramOnShow::Type(help, QStringLiteral("txtFind"), QStringLiteral("antenna"));
    QTest::keyClick(&Find<QLineEdit>(help, QStringLiteral("txtFind")), Qt::Key_Return);
    Visited("help-found", help);
    ProgramOnShow::Type(help, QStringLiteral("txtFind"), QStringLiteral("balun"));
    QTest::keyClick(&Find<QLineEdit>(help, QStringLiteral("txtFind")), Qt::Key_Return);
    Visited("help-not-found", help);
    help.close();
}

} // namespace quillon::test
