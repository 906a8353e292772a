#include <gtest/gtest.h>

#include <clocale>

// Tests without windows: in the desktop's language all the same, as Qt sets it for the whole program.
int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    std::setlocale(LC_ALL, "");
    return RUN_ALL_TESTS();
}
