#include "store/program_folder.h"

#include <gtest/gtest.h>

namespace quillon::store {
namespace {

const ProgramFolder kFolder("/opt/quillon/Quillon");

TEST(ProgramFolder, HoldsTheExecutable)
{
    EXPECT_EQ(kFolder.Path(), "/opt/quillon");
    EXPECT_EQ(kFolder.ExecutableName(), "Quillon");
    EXPECT_EQ(ProgramFolder("/opt/Quillon.bin").ExecutableName(), "Quillon");
}

TEST(ProgramFolder, HoldsTheCatalogues)
{
    EXPECT_EQ(kFolder.AntennaFolder(), "/opt/quillon/Antennas");
    EXPECT_EQ(kFolder.CoaxFolder(), "/opt/quillon/Coax");
    EXPECT_EQ(kFolder.AntennaFile("HY-GAIN"), "/opt/quillon/Antennas/HY-GAIN.DAT");
    EXPECT_EQ(kFolder.CoaxFile("DAVIS RF"), "/opt/quillon/Coax/DAVIS RF.DAT");
    EXPECT_EQ(kFolder.AntennaIndex(), "/opt/quillon/Antennas/ANTENNAS.ZEP");
    EXPECT_EQ(kFolder.HelpFile(), "/opt/quillon/Help/Quillon.hlp");
}

TEST(ProgramFolder, HoldsTheDataSetsByTheirExactNames)
{
    EXPECT_EQ(kFolder.DataSetPath("Systems"), "/opt/quillon/QuillonSystems.dat");
    EXPECT_EQ(kFolder.DataSetPath("Antennas"), "/opt/quillon/QuillonAntennas.dat");
    EXPECT_EQ(kFolder.DataSetPath("Coax"), "/opt/quillon/Coax/QuillonCoax.dat");
    EXPECT_EQ(kFolder.DataSetPath("coax").string(), "/opt/quillon/");
    EXPECT_EQ(kFolder.DataSetPath("").string(), "/opt/quillon/");
}

} // namespace
} // namespace quillon::store
