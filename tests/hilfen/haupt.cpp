#include <gtest/gtest.h>

#include <clocale>

/// Takes the locale of the environment, as the windows' library does in the program.
int main(int anzahl, char** werte)
{
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&anzahl, werte);
    return RUN_ALL_TESTS();
}
