#include "app/unwritable_folder.h"
#include "tests/app/pseudo_locale_fixture.h"
#include "ui/startup/splash.h"

#include <QCheckBox>
#include <QTest>

namespace quillon {
namespace {

using ui::Command;

/// Goes through all windows, messages and states.
class PseudoLocaleWalk : public PseudoLocale
{
protected:
    void MainWindow()
    {
        In(Command::SaveSystem); // nothing there yet
        ChooseSystem(QStringLiteral("One"), QStringLiteral("RG-8X"), QStringLiteral("BEAM FOUR"));
        ChooseSystem(QStringLiteral("Two"), QStringLiteral("RG-58"), QStringLiteral("ALL BANDS"));
        Look();
        for (const char* text : {"12.5 x", "1e39", "1600"}) {
            for (const char* box : {"txtOutputPower(1)", "txtSystemOneCoaxLength", "txtSystemOneNumConnectors",
                                    "txtCoaxLoss", "txtAntennaGain"}) {
                Type(Main(), box, QString::fromLatin1(text));
            }
            Look();
        }
        QTest::keyClick(&test::Find<QLineEdit>(Main(), QStringLiteral("txtOutputPower(1)")), Qt::Key_X);
        for (const char* box : {"txtOutputPower(1)", "txtSystemOneCoaxLength", "txtAntennaGain"}) {
            Type(Main(), box, QStringLiteral("100"));
        }
        Type(Main(), "txtSystemOneNumConnectors", QStringLiteral("2"));
        Files().Put("Antennas/HALO.DAT", "[LOOP]\n");
        WithFailingCalls(
            [this] { Choose(Main(), QStringLiteral("cboSystemOneAntenna(1)"), QStringLiteral("NO UNIT")); });
        WithFailingCalls([this] { Choose(Main(), QStringLiteral("cboSystemOneCoax(1)"), QStringLiteral("RG-8X")); });
        ChooseSystem(QStringLiteral("One"), QStringLiteral("RG-8X"), QStringLiteral("BEAM FOUR"));
    }

    void SaveAs(const QString& name)
    {
        In(Command::SaveSystem, [&name, this](QDialog& dialog) {
            Type(dialog, "txtSystemName", name);
            Click(dialog, "cmdSave");
            Look();
        });
    }

    void SaveAndLoad()
    {
        In(Command::LoadSystem);
        SaveAs(QStringLiteral("NEW"));
        SaveAs(QStringLiteral("NEW")); // asks
        for (const QString& refused : {QString(), QStringLiteral("a\tb"), QStringLiteral("Ω"), QStringLiteral("\"a\""),
                                       QString(255, u'a'), QString(256, u'a'), QStringLiteral("SavedSystems")}) {
            SaveAs(refused);
        }
        In(Command::LoadSystem);
        const auto load = [](QDialog& dialog) { Click(dialog, "cmdLoad"); };
        for (const char* damage : {"", "System1AntennaGain=x\r\n", "System1AntennaGain=1e39\r\n",
                                   "System1AntennaGain=1\r\nSystem1CoaxType=1\r\nSystem1CoaxLoss=1e38\r\n"
                                   "System1CoaxLength=1e38\r\n"}) {
            Files().Put("QuillonSystems.dat", std::string("[SavedSystems]\r\nSystem:1=NEW\r\n[NEW]\r\n") + damage);
            In(Command::LoadSystem, load);
        }
        std::filesystem::remove(Files() / "QuillonSystems.dat");
        In(Command::LoadSystem);
        Files().Put("QuillonSystems.dat", "");
    }

    void Print()
    {
        const auto print = [this](QDialog& dialog) {
            Look();
            Click(dialog, "cmdPrint");
        };
        In(Command::PrintReport, print);
        Printers().pageFault = ui::PrintError(7, QStringLiteral("Shack"), QStringLiteral("Attic"));
        In(Command::PrintReport, print);
        for (const auto& [one, two] : {std::pair(2.0F, 2.0F), std::pair(3.0F, 2.0F), std::pair(2.0F, 3.0F),
                                       std::pair(-1.0F, 2.0F), std::pair(40000.0F, 2.0F)}) {
            SetFigures(engine::SystemId::One, one);
            SetFigures(engine::SystemId::Two, two);
            In(Command::PrintReport);
        }
    }

    /// All figures that a report compares.
    void SetFigures(engine::SystemId system, float value)
    {
        engine::SystemData& data = Systems().Data[system];
        data.AntennaBrand = value == 2 ? "HALO" : "Hamwire";
        data.AntennaModel = value == 2 ? "LOOP" : "DIPOLE";
        data.CoaxBrand = value == 2 ? "CABLEWORKS" : "TIMES MICROWAVE";
        data.CoaxModel = value == 2 ? "RG-8X" : "LMR-A";
        for (float* figure :
             {&data.AntennaGain, &data.CoaxLoss, &data.CoaxLength, &data.Frequency, &data.XmitPower, &data.VSWR}) {
            *figure = value;
        }
        engine::SystemResults& results = Systems().Results[system];
        for (float* figure : {&results.ERP, &results.AntennaPowerGain, &results.FeedPointPower, &results.CoaxDBLoss,
                              &results.CoaxPowerLoss, &results.VSWRPowerLoss, &results.VSWRAttenuation}) {
            *figure = value;
        }
    }

    void AddNames(QDialog& dialog)
    {
        const auto add = [&dialog, this](const char* kind, const QString& name) {
            Click(dialog, qPrintable(QStringLiteral("cmdAddNew") + QLatin1String(kind)));
            Look();
            auto& box = test::Find<QLineEdit>(dialog, QStringLiteral("txtAntenna") + QLatin1String(kind));
            box.setText(name);
            QTest::keyClick(&box, Qt::Key_Return);
            Look();
        };
        for (const QString& brand : {QString(), QStringLiteral("a/b"), QStringLiteral("a\x7F"), QStringLiteral(".."),
                                     QStringLiteral("a."), QString(26, u'a'), QStringLiteral("Ω"), QStringLiteral(" a"),
                                     QStringLiteral("\"a\""), QStringLiteral("HALO"), QStringLiteral("NEW")}) {
            add("Brand", brand);
        }
        Choose(dialog, QStringLiteral("cboAntennaMakers"), QStringLiteral("WIRECRAFT"));
        for (const QString& model : {QString(), QStringLiteral("Ω"), QStringLiteral("TWENTY")}) {
            add("Model", model);
        }
        WithFailingCalls([&] { add("Brand", QStringLiteral("NEW")); });
        WithFailingCalls([&] { add("Model", QStringLiteral("NEW")); });
    }

    void ChangeModel(QDialog& dialog)
    {
        Choose(dialog, QStringLiteral("cboAntennaMakers"), QStringLiteral("WIRECRAFT"));
        WithFailingCalls([&] { Choose(dialog, QStringLiteral("cboAntennaModels"), QStringLiteral("BEAM FOUR")); });
        Choose(dialog, QStringLiteral("cboAntennaModels"), QStringLiteral("BEAM FOUR"));
        Click(dialog, "cmdEdit");
        for (int times = 0; times < 2; ++times) {
            auto& band = test::Find<QCheckBox>(dialog, QStringLiteral("chkBands(1)"));
            QTest::mouseClick(&band, Qt::LeftButton, Qt::NoModifier, QPoint(8, band.height() / 2));
        }
        Type(dialog, "txtGainFigure(6)", QStringLiteral("x"));
        Click(dialog, "cmdSave");
        Look();
        Type(dialog, "txtGainFigure(6)", QStringLiteral("5"));
        WithFailingCalls([&dialog] { Click(dialog, "cmdSave"); });
        Click(dialog, "cmdEdit");
        Click(dialog, "cmdSave");
    }

    void Edit()
    {
        In(Command::EditAntennas, [this](QDialog& dialog) {
            AddNames(dialog);
            ChangeModel(dialog);
        });
    }

    void Others()
    {
        In(Command::ShowDBTable);
        In(Command::About);
        Files().Put("Help/Quillon.hlp", R"(<h1><a name="15000">Contents</a></h1>)");
        emit Main().CommandGiven(Command::HelpContents);
        auto& help = test::Find<QWidget>(Main(), QStringLiteral("HelpWindow"));
        Type(help, "txtFind", QStringLiteral("nowhere"));
        QTest::keyClick(&test::Find<QLineEdit>(help, QStringLiteral("txtFind")), Qt::Key_Return);
        LookAt(help);
        const ui::Splash splash([] {}, {});
        LookAt(splash);
        Calls().FailAt(1, EACCES);
        support::RecordingNotifier told;
        TellUnwritableFolder(Calls(), store::ProgramFolder((Files() / "Quillon").string()), told);
        JudgeMessage(QString::fromStdString(told.Messages().at(0).text));
        JudgeMessage(QString::fromStdString(told.Messages().at(0).title));
        ChooseSystem(QStringLiteral("One"), QStringLiteral("RG-58"), QStringLiteral("ALL BANDS"));
        emit Main().CommandGiven(Command::Close);
    }
};

TEST_F(PseudoLocaleWalk, EveryTextIsTranslatedOrFixed)
{
    MainWindow();
    SaveAndLoad();
    Print();
    Edit();
    Others();
    EXPECT_EQ(Judge().Missed().join(u'\n').toStdString(), "");
    EXPECT_EQ(Judge().UnseenFixedTexts().join(u'\n').toStdString(), "");
    EXPECT_GT(Judge().Translated(), 0);
}

} // namespace
} // namespace quillon
