#include "tests/support/row_name.h"
#include "tests/ui/editor/editor_fixture.h"

#include <cerrno>
#include <filesystem>

namespace quillon::ui {
namespace {

class AddingTest : public EditorTest
{
protected:
    void SetUp() override { Open(); }

    /// Presses "Add New Brand", types a name and Enter.
    void AddBrand(const std::string& name)
    {
        Click("cmdAddNewBrand");
        Paste("txtAntennaBrand", name);
        Press(Qt::Key_Return);
    }

    void AddModel(const std::string& name)
    {
        Click("cmdAddNewModel");
        Paste("txtAntennaModel", name);
        Press(Qt::Key_Return);
    }
};

TEST_F(AddingTest, NewBrandIsAskedForInItsBox)
{
    Click("cmdAddNewBrand");
    EXPECT_EQ(Text("lblStatus"), "Type in the antenna brand then press enter.");
    EXPECT_TRUE(Box("txtAntennaBrand").isEnabled());
    EXPECT_EQ(Focus(), "txtAntennaBrand");
}

TEST_F(AddingTest, TypedBrandGetsAFileIsChosenAndGoesOnToItsFirstModel)
{
    Click("cmdAddNewBrand");
    test::Type(dialog, QStringLiteral("Wirecraft"));
    Press(Qt::Key_Enter);
    EXPECT_EQ(File("Wirecraft.DAT"), "");
    EXPECT_EQ(Entries("cboAntennaMakers"), "ACME|Mühle|Wirecraft");
    EXPECT_EQ(Text("cboAntennaMakers"), "Wirecraft");
    EXPECT_EQ(Entries("cboAntennaModels"), "");
    EXPECT_EQ(FileInfo(), "||");
    EXPECT_EQ(Text("txtAntennaBrand"), "");
    EXPECT_FALSE(Box("txtAntennaBrand").isEnabled());
    EXPECT_TRUE(Box("txtAntennaModel").isEnabled());
    EXPECT_EQ(Focus(), "txtAntennaModel");
    EXPECT_EQ(Text("lblStatus"), "Type in the antenna model then press enter.");
    EXPECT_EQ(window.Calls(), Calls{"LoadAntennaMakers"});
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(AddingTest, EnterHeldDownAddsTheBrandOnly)
{
    Click("cmdAddNewBrand");
    Paste("txtAntennaBrand", "Wirecraft");
    for (const bool isRepeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), isRepeated);
        QCoreApplication::sendEvent(dialog.focusWidget(), &press);
    }
    EXPECT_EQ(Focus(), "txtAntennaModel");
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(AddingTest, ExistingBrandIsAskedAboutAndCancelLeavesAllAsItIs)
{
    const std::string before = File("ACME.DAT");
    Answer(false);
    AddBrand("Acme");
    EXPECT_EQ(questions, (Questions{{"File Acme already exists. Overwrite it?", "File Already Exists!", true}}));
    EXPECT_EQ(File("ACME.DAT"), before);
    EXPECT_EQ(Text("txtAntennaBrand"), "Acme");
    EXPECT_EQ(Focus(), "txtAntennaBrand");
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(AddingTest, OverwritingABrandKeepsItsModelsAsGiven)
{
    const std::string before = File("ACME.DAT");
    Answer(true);
    AddBrand("Acme");
    EXPECT_EQ(File("ACME.DAT"), before);
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99");
    EXPECT_EQ(FileInfo(), "2|03/14/2003|11/02/2003");
    EXPECT_EQ(Focus(), "txtAntennaModel");
    EXPECT_FALSE(std::filesystem::exists(folder / "Antennas/Acme.DAT"));
}

TEST_F(AddingTest, NewModelIsWrittenListedShownAndCounted)
{
    ChooseMaker("ACME");
    AddModel("Loop (Mühle)");
    EXPECT_EQ(File("ACME.DAT"), "[XR-5]\r\nGainType=dBi\r\nGain20=71\r\nGain15=78\r\n[A-99]\r\nGainType=dBd\r\n"
                                "Gain10=-16\r\n[Loop (M\xFChle)]\r\nGainType=dBd\r\n");
    EXPECT_EQ(File("ANTENNAS.ZEP"), "[ACME]\r\nDateCreated=03/14/2003\r\nLastModified=03/07/2026\r\nNumEntries=3\r\n");
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99|Loop (Mühle)");
    EXPECT_EQ(Text("cboAntennaModels"), "Loop (Mühle)");
    EXPECT_EQ(Gains(), kNoGains);
    EXPECT_EQ(Bands(), ".............. 1");
    EXPECT_EQ(FileInfo(), "3|03/14/2003|03/07/2026");
    EXPECT_EQ(Text("txtAntennaModel"), "");
    EXPECT_FALSE(Box("txtAntennaModel").isEnabled());
    EXPECT_TRUE(Find("cmdEdit").isEnabled());
    EXPECT_FALSE(IsEditable());
    EXPECT_EQ(window.Calls(), Calls{"ReloadAntennas ACME"});
    EXPECT_EQ(Focus(), "cboAntennaModels");
}

TEST_F(AddingTest, FirstModelOfANewBrandStartsItsIndexEntry)
{
    AddBrand("Wirecraft");
    test::Type(dialog, QStringLiteral("Beam Four"));
    Press(Qt::Key_Return);
    EXPECT_EQ(File("Wirecraft.DAT"), "[Beam Four]\r\nGainType=dBd\r\n");
    EXPECT_EQ(FileInfo(), "1|03/07/2026|03/07/2026");
    EXPECT_EQ(window.Calls(), (Calls{"LoadAntennaMakers", "ReloadAntennas Wirecraft"}));
}

struct ReplaceRow
{
    const char* name;
    const char* model;
};

class Replacing : public AddingTest, public ::testing::WithParamInterface<ReplaceRow>
{
};

TEST_P(Replacing, IsAskedWhereAnExistingNameContainsTheNewOne)
{
    const std::string before = File("ACME.DAT");
    ChooseMaker("ACME");
    Answer(false);
    AddModel(GetParam().model);
    const std::string text = "Antenna Model " + std::string(GetParam().model) + " Already Exists! Replace it?";
    EXPECT_EQ(questions, (Questions{{text, "Model Exists!", true}}));
    EXPECT_EQ(File("ACME.DAT"), before);
    EXPECT_EQ(Text("txtAntennaModel"), GetParam().model);
    EXPECT_EQ(Focus(), "txtAntennaModel");
    EXPECT_TRUE(window.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(Names, Replacing,
                         ::testing::Values(ReplaceRow{"same name", "XR-5"}, ReplaceRow{"part, as given", "X"},
                                           ReplaceRow{"part in small letters", "a"}),
                         support::RowName());

TEST_F(AddingTest, ReplacingByAPartOfANameAddsTheModel)
{
    ChooseMaker("ACME");
    Answer(true);
    AddModel("X");
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99|X");
    EXPECT_EQ(Text("cboAntennaModels"), "X");
}

TEST_F(AddingTest, ReplacedModelTurnsToDBdAndKeepsItsGainsAsGiven)
{
    ChooseMaker("ACME");
    Answer(true);
    AddModel("xr-5");
    EXPECT_EQ(Text("cboAntennaModels"), "XR-5");
    EXPECT_EQ(Gains(), "|||||7.1||7.8||||||");
    EXPECT_EQ(Bands(), ".....x.x...... 1");
    EXPECT_EQ(FileInfo(), "2|03/14/2003|03/07/2026");
}

struct RefusedRow
{
    const char* name;
    const char* typed;
    const char* message;
};

class RefusedBrand : public AddingTest, public ::testing::WithParamInterface<RefusedRow>
{
};

TEST_P(RefusedBrand, IsToldAndCanBeMended)
{
    AddBrand(GetParam().typed);
    EXPECT_EQ(notifier.Messages(), (Messages{{GetParam().message, kTitle}}));
    EXPECT_EQ(Entries("cboAntennaMakers"), "ACME|Mühle");
    EXPECT_EQ(Focus(), "txtAntennaBrand");
    EXPECT_TRUE(window.Calls().empty());
    AddBrand("Mended");
    EXPECT_EQ(Text("cboAntennaMakers"), "Mended");
}

constexpr const char* kForbidden = "The antenna brand holds “/”, “\\” or “|”, which cannot be part of a file's name.";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, RefusedBrand, ::testing::Values(
    RefusedRow{"empty", "", "The antenna brand is empty."},
    RefusedRow{"way out of the folder", "../X", kForbidden},
    RefusedRow{"backslash", "a\\b", kForbidden},
    RefusedRow{"bar", "a|b", kForbidden},
    RefusedRow{"folder", "..", "The antenna brand is the name of a folder."},
    RefusedRow{"point at its end", "a.", "The antenna brand ends in a blank or a point, which the name of a file cannot."},
    RefusedRow{"control character", "a\x7F", "The antenna brand holds a control character."},
    RefusedRow{"26 characters", "abcdefghijklmnopqrstuvwxyz", "The antenna brand is longer than 25 characters."},
    RefusedRow{"letter beyond the code page", "Ω", "The antenna brand holds a character that the data files cannot hold."},
    RefusedRow{"blank in front", " a",
               "The antenna brand begins or ends with a blank, which would be lost in the data file."},
    RefusedRow{"quotes around", "\"a\"", "The antenna brand stands in quotes, which would be lost in the data file."}),
    support::RowName());

class RefusedModel : public AddingTest, public ::testing::WithParamInterface<RefusedRow>
{
};

TEST_P(RefusedModel, IsToldBeforeAnythingIsAskedOrWritten)
{
    const std::string before = File("ACME.DAT");
    ChooseMaker("ACME");
    AddModel(GetParam().typed);
    EXPECT_EQ(notifier.Messages(), (Messages{{GetParam().message, kTitle}}));
    EXPECT_EQ(File("ACME.DAT"), before);
    EXPECT_EQ(Focus(), "txtAntennaModel");
    EXPECT_TRUE(window.Calls().empty());
}

INSTANTIATE_TEST_SUITE_P(Names, RefusedModel, ::testing::Values(
    RefusedRow{"empty, which is part of every name", "", "The antenna model is empty."},
    RefusedRow{"control character", "a\x7F", "The antenna model holds a control character."},
    RefusedRow{"letter beyond the code page", "50 Ω",
               "The antenna model holds a character that the data files cannot hold."},
    RefusedRow{"quotes around", "\"a\"", "The antenna model stands in quotes, which would be lost in the data file."},
    RefusedRow{"blank behind", "a ",
               "The antenna model begins or ends with a blank, which would be lost in the data file."}),
    support::RowName());

// clang-format on

TEST_F(AddingTest, NamesAreShownInLetters)
{
    AddBrand("<b>A & B</b>");
    EXPECT_EQ(notifier.Messages().size(), 1U) << "a slash";
    AddBrand("<b>A && B %1");
    AddModel("<i>&amp;</i> %1");
    EXPECT_EQ(Text("cboAntennaMakers"), "<b>A && B %1");
    EXPECT_EQ(Text("cboAntennaModels"), "<i>&amp;</i> %1");
    EXPECT_EQ(File("<b>A && B %1.DAT"), "[<i>&amp;</i> %1]\r\nGainType=dBd\r\n");
}

TEST_F(AddingTest, BrandThatCannotBeWrittenIsTold)
{
    std::filesystem::remove_all(folder / "Antennas");
    AddBrand("Wirecraft");
    EXPECT_EQ(notifier.Messages(), (Messages{{"The file of “Wirecraft” could not be written.", kTitle}}));
    EXPECT_EQ(Focus(), "txtAntennaBrand");
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(AddingTest, FolderInTheBrandsPlaceIsTold)
{
    std::filesystem::create_directory(folder / "Antennas/Wirecraft.DAT");
    Answer(true);
    AddBrand("Wirecraft");
    EXPECT_EQ(notifier.Messages(),
              (Messages{{"“Wirecraft” is the name of something else than an antenna file.", kTitle}}));
    EXPECT_FALSE(List("cboAntennaMakers").HasChoice());
}

TEST_F(AddingTest, NameOfAModelIsNotTakenWithoutAMaker)
{
    ChooseMaker("ACME");
    Click("cmdAddNewModel");
    EXPECT_TRUE(Box("txtAntennaModel").isEnabled());
    std::filesystem::create_directory(folder / "Antennas/Wirecraft.DAT");
    Answer(true);
    AddBrand("Wirecraft");
    EXPECT_FALSE(Box("txtAntennaModel").isEnabled());
    EXPECT_FALSE(Find("cmdAddNewModel").isEnabled());
}

TEST_F(AddingTest, ModelThatCannotBeWrittenIsTold)
{
    ChooseMaker("ACME");
    std::filesystem::remove_all(folder / "Antennas");
    AddModel("New");
    EXPECT_EQ(notifier.Messages(), (Messages{{"The file of “ACME” could not be written.", kTitle}}));
    EXPECT_EQ(Text("txtAntennaModel"), "New");
    EXPECT_TRUE(Box("txtAntennaModel").isEnabled());
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(AddingTest, IndexThatCannotBeWrittenIsToldAndTheModelStands)
{
    std::filesystem::remove(folder / "Antennas/ANTENNAS.ZEP");
    std::filesystem::create_directory(folder / "Antennas/ANTENNAS.ZEP");
    ChooseMaker("ACME");
    AddModel("New");
    EXPECT_EQ(notifier.Messages(),
              (Messages{{"The file of “ACME” is written, but the index of the antenna files could not be.", kTitle}}));
    EXPECT_EQ(Text("cboAntennaModels"), "New");
    EXPECT_EQ(window.Calls(), Calls{"ReloadAntennas ACME"});
}

TEST_F(AddingTest, ModelThatTheListHasNoRoomForIsTold)
{
    std::string models;
    for (int number = 100; number < 320; ++number) {
        models += "[Model " + std::to_string(number) + "]\r\n";
    }
    folder.Put("Antennas/FULL.DAT", models);
    Open();
    ChooseMaker("FULL");
    AddModel("One more");
    EXPECT_EQ(
        notifier.Messages(),
        (Messages{{"“One more” is written to its file, but the list of models is full and cannot show it.", kTitle}}));
    EXPECT_TRUE(File("FULL.DAT").ends_with("[One more]\r\nGainType=dBd\r\n"));
    EXPECT_FALSE(Find("cmdEdit").isEnabled());
}

} // namespace
} // namespace quillon::ui
