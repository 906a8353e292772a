#pragma once

#include "tests/app/dialogs_fixture.h"
#include "tests/app/text_judge.h"
#include "tests/support/pseudo_translator.h"
#include "tests/ui/main/test_catalogue.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QLineEdit>

#include <cerrno>

namespace quillon {

/// Everything in the data of this test that is a name. Of the records' names only the first 16 characters are shown.
inline const QStringList kNames{
    QStringLiteral("WIRECRAFT"),
    QStringLiteral("HALO"),
    QStringLiteral("Hamwire"),
    QStringLiteral("alpha"),
    QStringLiteral("BEAM FOUR"),
    QStringLiteral("ALL BANDS"),
    QStringLiteral("NO UNIT"),
    QStringLiteral("MIXED ORDER"),
    QStringLiteral("SEVENTEEN-LETTERS"),
    QStringLiteral("TWENTY"),
    QStringLiteral("MINUS ONE"),
    QStringLiteral("WIDE ANGLE BEAM XL"),
    QStringLiteral("MINUS TWO"),
    QStringLiteral("UNIT ONLY"),
    QStringLiteral("LOOP"),
    QStringLiteral("DIPOLE"),
    QStringLiteral("CABLEWORKS"),
    QStringLiteral("RG-8X"),
    QStringLiteral("RG-58"),
    QStringLiteral("OPEN LINE"),
    QStringLiteral("ONE POINT"),
    QStringLiteral("NO FIGURES"),
    QStringLiteral("TIMES MICROWAVE"),
    QStringLiteral("LMR-A"),
    QStringLiteral("Shack"),
    QStringLiteral("Attic"),
    QStringLiteral("Courier"),
    QStringLiteral("Times"),
    QStringLiteral("Lucida Console"),
    QStringLiteral("NEW"),
    QStringLiteral("Quillon"),
    QStringLiteral("quillon@tarvel.example"),
    QStringLiteral("© 2026 Tarvel Software"),
};

/// In force before the windows are made.
struct Translated
{
    test::PseudoTranslator translator;
};

/// The program in a language that nobody speaks, with a judge of every text that it looks at.
class PseudoLocale : private Translated, public DialogsTest
{
protected:
    PseudoLocale()
        : DialogsTest(&ui::PutCatalogues)
        , m_judge(kNames + QStringList{QCoreApplication::applicationFilePath()})
    {
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { LookAtQuestion(); });
        m_watch.start(0);
    }

    void LookAt(const QWidget& window)
    {
        for (const test::ShownText& shown : test::TextsOf(window)) {
            m_judge.Judge(window.objectName(), shown);
        }
    }

    /// Everything that is open, and the messages since the last look.
    void Look()
    {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->objectName().isEmpty() && window->windowType() != Qt::Popup) {
                LookAt(*window);
            }
        }
        const auto& messages = Notifier().Messages();
        for (; m_messagesSeen < messages.size(); ++m_messagesSeen) {
            JudgeMessage(QString::fromStdString(messages[m_messagesSeen].text));
            JudgeMessage(QString::fromStdString(messages[m_messagesSeen].title));
        }
    }

    /// Gives a command and looks before and after something is done with its dialog.
    void In(
        ui::Command command, const std::function<void(QDialog&)>& work = [](QDialog&) {})
    {
        Give(command, [&](QDialog& dialog) {
            Look();
            work(dialog);
            Look();
        });
        Look();
    }

    /// The same as long as one call after the other fails on its way to the files.
    void WithFailingCalls(const std::function<void()>& work)
    {
        constexpr int kMostCalls = 100;
        for (int call = 1; call <= kMostCalls; ++call) {
            Calls().FailAt(call, EIO);
            work();
            Look();
            if (static_cast<int>(Calls().Made().size()) < call) {
                break;
            }
        }
        Calls().FailAt(0, 0);
    }

    void Choose(const QObject& window, const QString& name, const QString& entry)
    {
        auto& list = test::Find<ui::CatalogueListBox>(window, name);
        list.Choose(list.findText(entry));
    }

    void ChooseSystem(const QString& system, const QString& cable, const QString& model)
    {
        const QString coax = QStringLiteral("cboSystem%1Coax(%2)").arg(system);
        const QString antenna = QStringLiteral("cboSystem%1Antenna(%2)").arg(system);
        Choose(Main(), coax.arg(0), QStringLiteral("CABLEWORKS"));
        Choose(Main(), coax.arg(1), cable);
        Choose(Main(), antenna.arg(0), QStringLiteral("WIRECRAFT"));
        Choose(Main(), antenna.arg(1), model);
        Choose(Main(), antenna.arg(2), QStringLiteral("20 Meters"));
    }

    static void Type(const QObject& window, const char* box, const QString& text)
    {
        test::Find<QLineEdit>(window, QString::fromLatin1(box)).setText(text);
    }

    static void Click(const QObject& window, const char* button)
    {
        test::Find<QAbstractButton>(window, QString::fromLatin1(button)).click();
    }

    void JudgeMessage(const QString& text) { m_judge.Judge(QStringLiteral("message"), {QStringLiteral("text"), text}); }

    [[nodiscard]] const test::TextJudge& Judge() const { return m_judge; }

private:
    /// Each question is answered with the first of its buttons.
    void LookAtQuestion()
    {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            for (const test::ShownText& shown : test::TextsOf(*box)) {
                m_judge.Judge(QStringLiteral("message"), shown);
            }
            box->buttons().front()->click();
        }
    }

    test::TextJudge m_judge;
    QTimer m_watch;
    std::size_t m_messagesSeen = 0;
};

} // namespace quillon
