// The entry point of all native tests.
#include <gtest/gtest.h>

int main(int count, char** words) {
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
