// Names that are markup, in every window: hostile_markup
//
// Each is a maker's, a model's, a cable's and a saved pair's, and is shown as it is in lists, labels, messages, tool
// tips and on the printed page. Nothing that it names is ever opened.
#include "tests/reliability/hostile_markup_inspector.h"
#include "tests/support/find_widget.h"
#include "tests/support/whole_program.h"
#include "tests/ui/report/printed_page.h"
#include "ui/startup/splash.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <sys/inotify.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

namespace quillon::reliability {
namespace {

using ui::Command;

/// @ stands for the picture that nobody may open. In capitals where small letters do not matter, as lists take no
/// others.
const QStringList kNames{
    QStringLiteral("<b>BOLD</b>"),
    QStringLiteral("<B>"),
    QStringLiteral("<img src='@'>"),
    QStringLiteral("<img src=\"file://@\">"),
    QStringLiteral("<a href='https://quillon.example/'>A</a>"),
    QStringLiteral("<a href=javascript:1>"),
    QStringLiteral("<script>1</script>"),
    QStringLiteral("<style>*{color:red}</style>A"),
    QStringLiteral("<table><tr><td>A"),
    QStringLiteral("<!-- A -->"),
    QStringLiteral("<!DOCTYPE html>A"),
    QStringLiteral("<html>A"),
    QStringLiteral("<p>A<br>B<hr>"),
    QStringLiteral("<qt>A</qt>"),
    QStringLiteral("<qt><img src='@'/></qt>"),
    QStringLiteral("<body background='@'>A"),
    QStringLiteral("<object data='@'>"),
    QStringLiteral("<link rel=stylesheet href='@'>A"),
    QStringLiteral("<font size=7>A</font>"),
    QStringLiteral("<h1>A"),
    QStringLiteral("<pre>A"),
    QStringLiteral("<ul><li>A"),
    QStringLiteral("A <i>B</i> C"),
    QStringLiteral("A<br/>B"),
    QStringLiteral("</b>"),
    QStringLiteral("<"),
    QStringLiteral("A < B > C"),
    QStringLiteral("&amp;"),
    QStringLiteral("&lt;b&gt;"),
    QStringLiteral("&#60;b&#62;"),
    QStringLiteral("& A"),
    QStringLiteral("R&D"),
    QStringLiteral("A && B"),
    QStringLiteral("&Klose"),
    QStringLiteral("%1"),
    QStringLiteral("%1 %2 %3 %L1"),
    QStringLiteral("100% %n %s"),
    QStringLiteral("# A"),
    QStringLiteral("**A** _B_ [C](@)"),
    QStringLiteral("![A](@)"),
};

/// Counts how often a file is opened, by anybody.
class Watched
{
public:
    explicit Watched(const std::filesystem::path& file)
        : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        ::inotify_add_watch(m_descriptor, file.c_str(), IN_OPEN);
    }

    ~Watched() { ::close(m_descriptor); }

    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;

    /// Since the last call.
    [[nodiscard]] int Opened() const
    {
        int opened = 0;
        inotify_event event{};
        while (::read(m_descriptor, &event, sizeof event) > 0) {
            ++opened;
        }
        return opened;
    }

private:
    int m_descriptor;
};

/// What a list takes as the name of a maker's file: no longer than it may be, without separators.
QString MakerOf(QString name)
{
    return name.remove(u'/').remove(u'|').left(25).trimmed();
}

class Walk
{
public:
    Walk(const QString& name, HostileMarkupInspector& inspector)
        : m_name(name)
        , m_maker(MakerOf(name))
        , m_inspector(inspector)
    {
        const std::string section = "[" + name.toStdString() + "]\r\n";
        const std::string maker = m_maker.toStdString();
        m_program.files.Put("Antennas/" + maker + ".DAT",
                            section + "GainType=" + name.toStdString() + "\r\nGain20=50\r\n");
        m_program.files.Put("Antennas/ANTENNAS.ZEP", "[" + maker + "]\r\nNumEntries=" + name.toStdString() +
                                                         "\r\nDateCreated=" + name.toStdString() +
                                                         "\r\nLastModified=" + name.toStdString() + "\r\n");
        m_program.files.Put("Coax/" + maker + ".DAT",
                            section + "Loss10=1\r\nLoss50=2\r\nSpec1=" + name.toStdString() + "\r\n");
        m_program.files.Put("QuillonSystems.dat", "");
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { LookAtMessage(); });
        m_watch.start(0);
    }

    void Go()
    {
        m_program.window.Load();
        m_program.window.show();
        ChooseSystems();
        In(Command::SaveSystem, [this](QDialog& dialog) { Save(dialog); });
        In(Command::SaveSystem, [this](QDialog& dialog) { Save(dialog); }); // the question whether to replace it
        In(Command::LoadSystem, [this](QDialog& dialog) { Load(dialog); });
        In(Command::PrintReport, [this](QDialog& dialog) { Print(dialog); });
        In(Command::EditAntennas, [this](QDialog& dialog) { Edit(dialog); });
        LoadDamaged();
        for (const Command command : {Command::About, Command::ShowDBTable}) {
            In(command, [](QDialog&) {});
        }
        emit m_program.window.CommandGiven(Command::HelpContents);
        m_inspector.Compare(QStringLiteral("messages"), QString::number(m_messages), QStringLiteral("4"));
    }

private:
    ui::CatalogueListBox& List(const QObject& window, const QString& name)
    {
        return test::Find<ui::CatalogueListBox>(window, name);
    }

    void Choose(ui::CatalogueListBox& list, const QString& wanted)
    {
        m_inspector.Compare(list.objectName(), list.itemText(0), wanted);
        list.Choose(0);
        m_inspector.Compare(list.objectName(), list.currentText(), wanted);
    }

    void ChooseSystems()
    {
        for (const char* system : {"One", "Two"}) {
            const QString coax = QStringLiteral("cboSystem%1Coax(").arg(QLatin1String(system));
            const QString antenna = QStringLiteral("cboSystem%1Antenna(").arg(QLatin1String(system));
            Choose(List(m_program.window, coax + QStringLiteral("0)")), m_maker);
            Choose(List(m_program.window, coax + QStringLiteral("1)")), m_name);
            Choose(List(m_program.window, antenna + QStringLiteral("0)")), m_maker);
            Choose(List(m_program.window, antenna + QStringLiteral("1)")), m_name);
            Choose(List(m_program.window, antenna + QStringLiteral("2)")), QStringLiteral("20 Meters"));
        }
        LookAtAll();
    }

    void Save(QDialog& dialog)
    {
        auto& name = test::Find<QLineEdit>(dialog, QStringLiteral("txtSystemName"));
        name.setText(m_name);
        test::Find<QPushButton>(dialog, QStringLiteral("cmdSave")).click();
    }

    void Load(QDialog& dialog)
    {
        const auto& list = test::Find<QComboBox>(dialog, QStringLiteral("cboSavedSystems"));
        m_inspector.Compare(QStringLiteral("the saved pairs"), list.itemText(0), m_name);
        test::Find<QPushButton>(dialog, QStringLiteral("cmdLoad")).click();
    }

    void LoadDamaged()
    {
        m_program.files.Put("QuillonSystems.dat", "[SavedSystems]\r\nSystem:1=" + m_name.toStdString() + "\r\n[" +
                                                      m_name.toStdString() +
                                                      "]\r\nSystem1AntennaGain=" + m_name.toStdString() + "\r\n");
        In(Command::LoadSystem, [this](QDialog& dialog) { Load(dialog); });
    }

    void Print(QDialog& dialog)
    {
        test::Find<QPlainTextEdit>(dialog, QStringLiteral("txtNotes")).setPlainText(m_name);
        test::Find<QPushButton>(dialog, QStringLiteral("cmdPrint")).click();
        LookAtAll();
        m_program.files.Put("page.pdf", m_program.printers.jobs.at(0).pdf.toStdString());
        const test::PrintedPage page(QString::fromStdString((m_program.files / "page.pdf").string()));
        // Letters that are drawn as one are read back as one.
        const auto withoutBlanks = [](const QString& line) {
            return line.normalized(QString::NormalizationForm_KC).remove(u' ');
        };
        const QString text = withoutBlanks(page.text);
        const QString notes = withoutBlanks(QStringLiteral("Notes: ") + m_name);
        m_inspector.Compare(QStringLiteral("the printed page"), text.contains(notes) ? notes : text, notes);
    }

    void Edit(QDialog& dialog)
    {
        Choose(List(dialog, QStringLiteral("cboAntennaMakers")), m_maker);
        Choose(List(dialog, QStringLiteral("cboAntennaModels")), m_name);
        m_inspector.Compare(QStringLiteral("the index"),
                            test::Find<QLabel>(dialog, QStringLiteral("lblFileInfo(3)")).text(), m_name);
        LookAtAll();
        TypeIn(dialog, QStringLiteral("Brand"), m_maker);
        TypeIn(dialog, QStringLiteral("Model"), m_name);
        LookAtAll();
    }

    /// What is there already is asked about.
    static void TypeIn(QDialog& dialog, const QString& kind, const QString& name)
    {
        test::Find<QPushButton>(dialog, QStringLiteral("cmdAddNew") + kind).click();
        auto& line = test::Find<QLineEdit>(dialog, QStringLiteral("txtAntenna") + kind);
        line.setText(name);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QApplication::sendEvent(&line, &enter);
    }

    /// Gives a command, looks at the dialog that it opens before and after something is done with it, and closes it.
    void In(Command command, const std::function<void(QDialog&)>& work)
    {
        QTimer opened;
        QObject::connect(&opened, &QTimer::timeout, &opened, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || qobject_cast<QMessageBox*>(dialog) != nullptr) {
                return;
            }
            opened.stop();
            m_inspector.LookAt(*dialog);
            work(*dialog);
            m_inspector.LookAt(*dialog);
            dialog->reject();
        });
        opened.start(0);
        emit m_program.window.CommandGiven(command);
        LookAtAll();
    }

    void LookAtMessage()
    {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++m_messages;
            m_inspector.LookAt(*box);
            m_inspector.Compare(QStringLiteral("the message \"") + box->text() + u'"',
                                QString::number(box->textFormat() == Qt::PlainText), QStringLiteral("1"));
            box->reject();
        }
    }

    void LookAtAll()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            m_inspector.LookAt(*window);
        }
    }

    QString m_name;
    QString m_maker;
    HostileMarkupInspector& m_inspector;
    int m_messages = 0;
    QTimer m_watch;
    support::WholeProgram m_program;
};

/// Whether the watch sees a label in rich text open the picture, so that it would see others.
bool WatchSees(const Watched& picture, const QString& path)
{
    QLabel label(QStringLiteral("<img src='%1'>").arg(path));
    label.grab();
    return picture.Opened() > 0;
}

int Run()
{
    support::TempFolder files;
    const QString path = QString::fromStdString(files.Put("p.png", "").string());
    QImage(8, 8, QImage::Format_RGB32).save(path);
    const Watched picture(path.toStdString());
    if (!WatchSees(picture, path)) {
        std::puts("What is opened cannot be watched here.");
        return 1;
    }
    HostileMarkupInspector inspector;
    int loads = 0;
    for (QString name : kNames) {
        name.replace(u'@', path);
        inspector.Expect(name);
        ui::Splash splash([] {}, {});
        splash.show();
        Walk(name, inspector).Go();
        loads += picture.Opened();
    }
    for (const QString& finding : inspector.Findings()) {
        std::puts(qUtf8Printable(finding));
    }
    std::printf("%d names x %d windows, %d texts, %d rich-text renderings or other texts, %d resource loads\n",
                static_cast<int>(kNames.size()), static_cast<int>(inspector.Windows().size()), inspector.Texts(),
                static_cast<int>(inspector.Findings().size()), loads);
    return inspector.Findings().isEmpty() && loads == 0 ? 0 : 1;
}

} // namespace
} // namespace quillon::reliability

int main(int argc, char* argv[])
{
    QLocale::setDefault(QLocale::c());
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return quillon::reliability::Run();
}
