#include "harness/failure_screenshots.h"

#include "harness/screen.h"
#include "win/text_convert.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace E2e {

std::string ScreenshotFolder() {
    if (const char* folder = std::getenv("TARVEX_E2E_SCREENSHOTS"); folder && *folder)
        return folder;
    wchar_t current[MAX_PATH];
    DWORD n = ::GetCurrentDirectoryW(MAX_PATH, current);
    return Win::Narrow(std::wstring_view(current, n)) + "\\e2e-screenshots";
}

bool SaveNamedScreenshot(const std::string& name) {
    std::string folder = ScreenshotFolder();
    ::CreateDirectoryW(Win::Widen(folder).c_str(), nullptr);
    return SaveScreenshot(folder + "\\" + name + ".bmp");
}

void FailureScreenshots::OnTestPartResult(const ::testing::TestPartResult& result) {
    if (!result.failed() || taken_)
        return;
    taken_ = true;
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    if (!test)
        return;
    std::string name = std::string(test->test_suite_name()) + "." + test->name();
    std::replace(name.begin(), name.end(), '/', '-'); // a parameterised test's "Shipped/Themes.Paint/Paper"
    std::string path = ScreenshotFolder() + "\\" + name + ".bmp";
    if (SaveNamedScreenshot(name))
        std::fprintf(stderr, "screenshot of the failure: %s\n", path.c_str());
    else
        std::fprintf(stderr, "the screenshot of the failure could not be saved as %s\n", path.c_str());
}

} // namespace E2e
