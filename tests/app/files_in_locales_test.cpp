#include "tests/app/dialogs_fixture.h"
#include "tests/ui/main/test_catalogue.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

#include <clocale>
#include <filesystem>
#include <map>

namespace quillon {
namespace {

using ui::Command;

/// One run of the program in a language: a pair is saved, a maker and a model are added, bands are saved. Whatever the
/// locale has for a decimal sign is typed.
class RunInLocale : public DialogsTest
{
public:
    RunInLocale()
        : DialogsTest(&ui::PutCatalogues)
    {
    }

    void TestBody() override {}

    /// All files of the program folder that the run leaves behind, by name.
    std::map<std::string, std::string> Work()
    {
        Configure();
        Give(Command::SaveSystem, [](QDialog& dialog) {
            Type(dialog, "txtSystemName", QStringLiteral("MAIN ISLAND I i \u00FF"));
            Click(dialog, "cmdSave");
        });
        Give(Command::EditAntennas, [](QDialog& dialog) { Edit(dialog); });
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(Files().Path())) {
            if (entry.is_regular_file()) {
                const std::string name = entry.path().lexically_relative(Files().Path()).string();
                files[name] = Files().Get(name).value_or("unreadable");
            }
        }
        return files;
    }

private:
    static void Type(const QObject& window, const char* box, const QString& text)
    {
        test::Find<QLineEdit>(window, QString::fromLatin1(box)).setText(text);
    }

    static void Click(const QObject& window, const char* button)
    {
        test::Find<QAbstractButton>(window, QString::fromLatin1(button)).click();
    }

    static void Enter(const QObject& window, const char* box, const QString& text)
    {
        Type(window, box, text);
        QTest::keyClick(&test::Find<QLineEdit>(window, QString::fromLatin1(box)), Qt::Key_Return);
    }

    /// A figure as a person types it.
    static QString Typed(const char* figure)
    {
        return QString::fromLatin1(figure).replace(u'.', QLocale().decimalPoint());
    }

    void Choose(const QString& list, const QString& entry)
    {
        auto& box = test::Find<ui::CatalogueListBox>(Main(), list);
        box.Choose(box.findText(entry));
    }

    void Configure()
    {
        for (const char* system : {"One", "Two"}) {
            const QString coax = QStringLiteral("cboSystem%1Coax(%2)").arg(QLatin1String(system));
            const QString antenna = QStringLiteral("cboSystem%1Antenna(%2)").arg(QLatin1String(system));
            Choose(coax.arg(0), QStringLiteral("CABLEWORKS"));
            Choose(coax.arg(1), QStringLiteral("RG-8X"));
            Choose(antenna.arg(0), QStringLiteral("WIRECRAFT"));
            Choose(antenna.arg(1), QStringLiteral("BEAM FOUR"));
            Choose(antenna.arg(2), QStringLiteral("15 Meters"));
        }
        Type(Main(), "txtSystemOneCoaxLength", Typed("1234.5"));
        Type(Main(), "txtSystemTwoCoaxLength", QStringLiteral("62.5"));
        Type(Main(), "txtOutputPower(2)", Typed("0.75"));
    }

    static void Edit(QDialog& dialog)
    {
        Click(dialog, "cmdAddNewBrand");
        Enter(dialog, "txtAntennaBrand", QStringLiteral("Istanbul Iii"));
        Enter(dialog, "txtAntennaModel", QStringLiteral("Mini Yagi \u00DC"));
        Click(dialog, "cmdEdit");
        const std::pair<int, QString> gains[]{{1, Typed("5.15")}, {6, QStringLiteral("2.25")}, {14, Typed("-.5")}};
        for (const auto& [band, gain] : gains) {
            test::Find<QCheckBox>(dialog, QStringLiteral("chkBands(%1)").arg(band)).setChecked(true);
            Type(dialog, qPrintable(QStringLiteral("txtGainFigure(%1)").arg(band)), gain);
        }
        Click(dialog, "cmdSave");
    }
};

std::map<std::string, std::string> FilesWrittenIn(const char* locale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, (std::string(locale) + ".UTF-8").c_str());
    QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
    const auto files = RunInLocale().Work();
    QLocale::setDefault(QLocale::system());
    std::setlocale(LC_ALL, before.c_str());
    return files;
}

TEST(FilesInLocales, AreTheSameByteForByte)
{
    const auto files = FilesWrittenIn("C");
    EXPECT_NE(files.at("QuillonSystems.dat").find("\nSystem1CoaxLength=1234.5\r\n"), std::string::npos);
    EXPECT_NE(files.at("QuillonSystems.dat").find("\nSystem2XmitPower=0.75\r\n"), std::string::npos);
    EXPECT_NE(files.at("QuillonSystems.dat").find("\nSystem2Frequency=21.225\r\n"), std::string::npos);
    EXPECT_EQ(files.at("Antennas/Istanbul Iii.DAT"),
              "[Mini Yagi \xDC]\r\nGainType=dBd\r\nGain160=52\r\nGain20=22\r\nGain.70=-5\r\n");
    EXPECT_NE(files.at("Antennas/ANTENNAS.ZEP").find("[Istanbul Iii]"), std::string::npos);
    for (const char* locale : {"de_DE", "fr_FR", "pl_PL", "tr_TR"}) {
        EXPECT_EQ(FilesWrittenIn(locale), files) << locale;
    }
}

} // namespace
} // namespace quillon
