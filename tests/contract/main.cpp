// The entry point of the contract tests, on both grounds.
#include "contract/ground.h"

#include <gtest/gtest.h>

int main(int count, char** words) {
    if (PlayStranger(count, words))
        return 0;
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
