// The end-to-end test program's entry: GoogleTest with screenshots of failures.
#include "harness/failure_screenshots.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new E2e::FailureScreenshots);
    return RUN_ALL_TESTS();
}
