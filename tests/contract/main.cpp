// The entry point of the contract tests, on both grounds.
#include <gtest/gtest.h>

int main(int count, char** words) {
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
