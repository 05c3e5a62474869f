// Saves a screenshot when a test first fails, named after the test, so that the log
// of a failed run shows what was on the screen at that moment.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace E2e {

// The folder of the screenshots: TARVEX_E2E_SCREENSHOTS when set, else
// "e2e-screenshots" in the current directory, which for ctest is the tests' build folder.
std::string ScreenshotFolder();

// Saves the screen as "<name>.bmp" in the screenshot folder; false when it could not.
bool SaveNamedScreenshot(const std::string& name);

class FailureScreenshots : public ::testing::EmptyTestEventListener {
public:
    void OnTestStart(const ::testing::TestInfo&) override { taken_ = false; }
    void OnTestPartResult(const ::testing::TestPartResult& result) override;

private:
    bool taken_ = false;
};

} // namespace E2e
