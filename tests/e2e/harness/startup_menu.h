// A test whose program opens a menu at start: it writes the settings and menu files,
// starts the program and waits for the first menu window, painted and steady.
#pragma once

#include "harness/menu_window.h"
#include "harness/program_folder.h"
#include "harness/tarvex.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace E2e {

class StartupMenuTest : public ::testing::Test {
protected:
    // None when the program could not be started or showed no menu.
    std::optional<WindowInfo> Start(const std::string& settings, const std::string& menus);

    // Saves the screen as "menuwindow-<name>.bmp" in the screenshot folder, for a person
    // to look at.
    static void Screenshot(const std::string& name);

    ProgramFolder folder;
    Tarvex tarvex;
};

} // namespace E2e
