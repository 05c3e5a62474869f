#include "menuwindow/layout/text_runs.h"

namespace MenuWindow {

std::vector<TextRun> SplitTextRuns(const std::vector<bool>& missing) {
    std::vector<TextRun> runs;
    for (std::size_t i = 0; i < missing.size(); ++i) {
        if (runs.empty() || runs.back().fallback != missing[i])
            runs.push_back({i, 0, missing[i]});
        ++runs.back().length;
    }
    return runs;
}

} // namespace MenuWindow
