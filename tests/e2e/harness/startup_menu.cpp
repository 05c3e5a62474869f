#include "harness/startup_menu.h"

#include "harness/failure_screenshots.h"

namespace E2e {

std::optional<WindowInfo> StartupMenuTest::Start(const std::string& settings, const std::string& menus) {
    if (!folder.ready())
        return std::nullopt;
    folder.WriteSettings(settings);
    folder.WriteMenus(menus);
    if (!tarvex.Start(folder))
        return std::nullopt;
    return WaitForMenuWindow(tarvex.processId());
}

void StartupMenuTest::Screenshot(const std::string& name) {
    EXPECT_TRUE(SaveNamedScreenshot("menuwindow-" + name));
}

} // namespace E2e
