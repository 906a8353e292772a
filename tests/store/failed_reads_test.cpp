#include "store/profile_batch.h"
#include "tests/store/catalogue_fixture.h"
#include "tests/store/failing_calls.h"

#include <array>
#include <functional>
#include <memory>
#include <system_error>

namespace quillon::store {
namespace {

TEST(FailedReads, AreCounted)
{
    const support::TempFolder folder;
    const std::filesystem::path file = folder / "f.dat";
    FailingCalls calls;
    ProfileStore store(calls);
    EXPECT_EQ(store.Read(file).Bytes(), "");
    EXPECT_EQ(store.FailedReads(), 0U) << "what is not there has been read";
    std::filesystem::create_directory(file);
    EXPECT_EQ(store.Read(file).Bytes(), "");
    EXPECT_EQ(store.FailedReads(), 1U);
    std::filesystem::remove(file);
    EXPECT_EQ(store.Read(file).Bytes(), "");
    EXPECT_EQ(store.FailedReads(), 1U);
    calls.FailAt(1, EIO);
    EXPECT_THROW(store.CreateIfMissing(file), std::system_error);
    EXPECT_EQ(store.FailedReads(), 2U) << "the folder counts, too";
}

TEST(FailedReads, OfAFolderKeepABatchFromBeingWritten)
{
    support::TempFolder folder;
    const std::filesystem::path file = folder.Put("f.dat", "[s]\na=1\n");
    FailingCalls calls;
    ProfileStore store(calls);
    ProfileBatch batch(store, file);
    calls.FailAt(1, EIO);
    EXPECT_THROW(store.CreateIfMissing(folder / "other.dat"), std::system_error);
    calls.FailAt(0, 0);
    EXPECT_FALSE(store.Edit(file, {"s", "a", "2"}));
    EXPECT_FALSE(batch.Commit());
    EXPECT_EQ(folder.Get("f.dat"), "[s]\na=1\n");
}

/// What a read gave, and how it ended.
enum class Reading { Whole, Failed };

/// A catalogue whose files cannot always be read.
class CatalogueReads : public CatalogueTest
{
protected:
    CatalogueReads()
    {
        m_folder.Put("Antennas/W.DAT", "[m]\nGainType=dBd\nGain20=71\n[none]\n");
        m_folder.Put("Coax/C.DAT", "[t]\nLoss1=1\nLoss1000=9\nSpec1=0.4\n");
        m_folder.Put("Coax/TIMES MICROWAVE.DAT", "[t]\nK1=0.1\nK2=0.2\n");
    }

    /// Reads with each of the calls failing in turn, from a store that holds nothing and from one that holds the file.
    /// @return how many reads failed.
    int FailEachCall(const std::function<Reading(const Catalogue&)>& read)
    {
        int failed = 0;
        for (const bool isHeld : {false, true}) {
            bool isThrough = false;
            for (int number = 1; !isThrough; ++number) {
                const Catalogue catalogue(ProgramFolder(m_folder / "Quillon"), std::make_shared<ProfileStore>(m_calls));
                m_calls.FailAt(0, 0);
                EXPECT_TRUE(!isHeld || read(catalogue) == Reading::Whole);
                m_calls.FailAt(number, EIO);
                const Reading reading = read(catalogue);
                isThrough = static_cast<int>(m_calls.Made().size()) < number;
                EXPECT_TRUE(!isThrough || reading == Reading::Whole);
                failed += reading == Reading::Failed ? 1 : 0;
            }
        }
        return failed;
    }

    FailingCalls m_calls;
};

TEST_F(CatalogueReads, ModelIsItsBandsAndItsUnit)
{
    const auto model = m_catalogue.LoadModel("W", "m");
    ASSERT_TRUE(model);
    EXPECT_EQ(model->gainType, "dBd");
    EXPECT_EQ(model->bands.at(5).covered, "True");
    EXPECT_EQ(model->bands.at(5).gain, "71");
    EXPECT_EQ(model->bands.at(6).covered, "False");
}

TEST_F(CatalogueReads, ModelWithoutKeysIsThereWithoutBands)
{
    const auto model = m_catalogue.LoadModel("W", "none");
    ASSERT_TRUE(model);
    EXPECT_EQ(model->gainType, "");
    EXPECT_EQ(model->bands.at(5).covered, std::string(25, '\0'));
}

TEST_F(CatalogueReads, ModelIsWholeOrNoneWhateverCallFails)
{
    const int failed = FailEachCall([](const Catalogue& catalogue) {
        const auto model = catalogue.LoadModel("W", "m");
        EXPECT_TRUE(!model || (model->gainType == "dBd" && model->bands.at(5).gain == "71"));
        return model ? Reading::Whole : Reading::Failed;
    });
    EXPECT_GE(failed, 4) << "looking at the file, opening it, asking for its size, reading it; more while it is new";
}

TEST_F(CatalogueReads, ModelIsNoneOfAMakerWhoseNameAFolderHas)
{
    std::filesystem::create_directory(m_folder / "Antennas/F.DAT");
    EXPECT_FALSE(m_catalogue.LoadModel("F", "m"));
}

TEST_F(CatalogueReads, CableHasTheFiguresOfItsMakersKind)
{
    std::array<float, 9> figures{};
    const auto cable = m_catalogue.LoadCable("C", "t", figures);
    ASSERT_TRUE(cable);
    EXPECT_EQ(cable->Spec1, 0.4F);
    EXPECT_EQ(figures, (std::array<float, 9>{1, 0, 0, 0, 0, 0, 0, 0, 9}));
    ASSERT_TRUE(m_catalogue.LoadCable("TIMES MICROWAVE", "t", figures));
    EXPECT_EQ(figures, (std::array<float, 9>{1, 0.1F, 0.2F, 0, 0, 0, 0, 0, 9})) << "places without a value stay";
}

TEST_F(CatalogueReads, CableIsWholeOrNoneWhateverCallFails)
{
    const int failed = FailEachCall([](const Catalogue& catalogue) {
        std::array<float, 9> figures{};
        const auto cable = catalogue.LoadCable("C", "t", figures);
        const std::array<float, 9> wanted{1, 0, 0, 0, 0, 0, 0, 0, 9};
        EXPECT_EQ(figures, cable ? wanted : (std::array<float, 9>{})) << "figures that are read in part stay away";
        EXPECT_TRUE(!cable || cable->Spec1 == 0.4F);
        return cable ? Reading::Whole : Reading::Failed;
    });
    EXPECT_GE(failed, 4) << "looking at the file, opening it, asking for its size, reading it; more while it is new";
}

} // namespace
} // namespace quillon::store
