// Chooses everything there is in a program folder, in the program's own windows: hostile_choices FOLDER
//
// Each maker once in every list of makers, with its first models and bands; each saved pair; each topic of the help.
// What the program has to say is answered. Prints one line of JSON: the number of choices, the time that the slowest of
// them took, and the most memory that was in use.
#include "app/program.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>

namespace quillon::reliability {
namespace {

/// Of a folder with thousands of makers each is chosen, but only of some are the first models and bands.
constexpr int kFirstModels = 3;
constexpr int kFirstBands = 2;
constexpr int kMakersWithModels = 200;
/// In the lists besides the first of each kind, as many makers as these.
constexpr int kFirstMakers = 10;
constexpr int kFirstPairs = 20;

class Choices
{
public:
    explicit Choices(Program& program)
        : m_window(program.Window())
    {
        QObject::connect(&m_answer, &QTimer::timeout, &m_answer, [this] { AnswerMessages(); });
        m_answer.start(0);
    }

    void MakeAll()
    {
        int most = std::numeric_limits<int>::max();
        for (const char* system : {"One", "Two"}) {
            const QString lists = QStringLiteral("cboSystem%1%2(%3)").arg(QString::fromLatin1(system));
            ChooseIn(m_window, lists.arg(QStringLiteral("Coax")), 2, most);
            ChooseIn(m_window, lists.arg(QStringLiteral("Antenna")), 3, most);
            most = kFirstMakers;
        }
        InDialog(ui::Command::EditAntennas, [this](QDialog& dialog) { ChooseInEditor(dialog); });
        InDialog(ui::Command::LoadSystem, [this](QDialog& dialog) { ChoosePairs(dialog); });
        InDialog(ui::Command::SaveSystem, [](QDialog&) {});
        InDialog(ui::Command::PrintReport, [](QDialog&) {});
        Time([this] { emit m_window.CommandGiven(ui::Command::HelpContents); });
        Time([] { QApplication::processEvents(); });
    }

    [[nodiscard]] QJsonObject Figures() const
    {
        return {{QStringLiteral("choices"), m_choices},
                {QStringLiteral("slowest"), static_cast<double>(m_slowest) / CLOCKS_PER_SEC},
                {QStringLiteral("messages"), m_messages},
                {QStringLiteral("memory"), MostMemory()}};
    }

private:
    void ChooseIn(const QWidget& window, const QString& lists, int depth, int most, int place = 0)
    {
        auto* list = window.findChild<ui::CatalogueListBox*>(lists.arg(place));
        if (list == nullptr || place == depth) {
            return;
        }
        const int first = place == 0 ? most : place == 1 ? kFirstModels : kFirstBands;
        for (int index = 0; index < std::min(list->count(), first); ++index) {
            Time([list, index] { list->Choose(index); });
            if (place > 0 || index < kMakersWithModels) {
                ChooseIn(window, lists, depth, most, place + 1);
            }
        }
    }

    void ChooseInEditor(const QDialog& dialog)
    {
        auto* makers = dialog.findChild<ui::CatalogueListBox*>(QStringLiteral("cboAntennaMakers"));
        auto* models = dialog.findChild<ui::CatalogueListBox*>(QStringLiteral("cboAntennaModels"));
        for (int maker = 0; maker < std::min(makers->count(), kFirstMakers); ++maker) {
            Time([makers, maker] { makers->Choose(maker); });
            for (int model = 0; model < std::min(models->count(), kFirstModels); ++model) {
                Time([models, model] { models->Choose(model); });
            }
        }
    }

    void ChoosePairs(const QDialog& dialog)
    {
        auto* pairs = dialog.findChild<QComboBox*>(QStringLiteral("cboSavedSystems"));
        for (int pair = 0; pair < std::min(pairs->count(), kFirstPairs); ++pair) {
            Time([pairs, pair] {
                pairs->setCurrentIndex(pair);
                emit pairs->activated(pair);
            });
        }
        Time([&dialog] { dialog.findChild<QPushButton*>(QStringLiteral("cmdLoad"))->click(); });
    }

    /// Opens a dialog, works in it and closes it again.
    void InDialog(ui::Command command, const std::function<void(QDialog&)>& work)
    {
        const std::clock_t before = std::clock();
        QTimer opened;
        opened.setInterval(0);
        QObject::connect(&opened, &QTimer::timeout, &opened, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || qobject_cast<QMessageBox*>(dialog) != nullptr) {
                return;
            }
            opened.stop();
            Note(before);
            work(*dialog);
            dialog->reject();
        });
        opened.start();
        emit m_window.CommandGiven(command);
    }

    void AnswerMessages()
    {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++m_messages;
            box->reject();
        }
    }

    void Time(const std::function<void()>& choose)
    {
        const std::clock_t before = std::clock();
        choose();
        Note(before);
    }

    void Note(std::clock_t before)
    {
        ++m_choices;
        m_slowest = std::max(m_slowest, std::clock() - before);
    }

    /// In megabytes.
    [[nodiscard]] static double MostMemory()
    {
        QFile status(QStringLiteral("/proc/self/status"));
        status.open(QIODevice::ReadOnly);
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.simplified().split(' ').at(1).toDouble() / 1024;
            }
        }
        return 0;
    }

    ui::Quillon& m_window;
    QTimer m_answer;
    int m_choices = 0;
    int m_messages = 0;
    std::clock_t m_slowest = 0;
};

} // namespace
} // namespace quillon::reliability

int main(int argc, char* argv[])
{
    using namespace quillon;
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2) {
        qCritical("usage: hostile_choices FOLDER");
        return 2;
    }
    Program program(store::ProgramFolder((arguments.at(1) + QStringLiteral("/Quillon")).toStdString()));
    program.Show();
    reliability::Choices choices(program);
    choices.MakeAll();
    std::puts(QJsonDocument(choices.Figures()).toJson(QJsonDocument::Compact).constData());
    return 0;
}
