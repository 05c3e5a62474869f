#include "menuwindow/layout/text_runs.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(SplitTextRuns, AlikeUnitsMakeOneRunAndEveryUnitIsInOne) {
    EXPECT_TRUE(SplitTextRuns({}).empty());
    EXPECT_EQ(SplitTextRuns({false, false}), (std::vector<TextRun>{{0, 2, false}}));
    EXPECT_EQ(SplitTextRuns({true, true, false, true}),
              (std::vector<TextRun>{{0, 2, true}, {2, 1, false}, {3, 1, true}}));
}
