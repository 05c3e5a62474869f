// The program's exit: the question, No, Yes, and a close from outside.
#include "harness/dialogs.h"
#include "harness/input.h"
#include "harness/popup_menu.h"
#include "harness/program_folder.h"
#include "harness/recording_tray.h"
#include "harness/tarvex.h"

#include <gtest/gtest.h>

namespace {

using namespace E2e;

class Exit : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(tray.ready());
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings("[TARVEX]\nGenShowInTray=True\n");
        ASSERT_TRUE(tarvex.Start(folder));
        std::optional<WindowInfo> found = tarvex.WaitForMainForm();
        ASSERT_TRUE(found);
        form = found->hwnd;
        ASSERT_TRUE(tray.WaitForCount(NIM_ADD, form, 1, 20s));
    }

    std::optional<WindowInfo> AskToExit() {
        if (!tarvex.OpenTrayMenu())
            return std::nullopt;
        ChooseMenuEntry('x');
        return WaitForMessageBox(tarvex.processId());
    }

    RecordingTray tray;
    ProgramFolder folder;
    Tarvex tarvex;
    HWND form = nullptr;
};

} // namespace

TEST_F(Exit, AsksTheQuestionWithYesAndNoAndNoKeepsTheProgramRunningWithItsIcon) {
    std::optional<WindowInfo> question = AskToExit();
    ASSERT_TRUE(question);
    EXPECT_EQ(question->title, "Tarvex");
    EXPECT_EQ(DialogText(question->hwnd), "This will shutdown Tarvex. Are you sure?");
    std::vector<std::string> buttons;
    for (const WindowInfo& child : ChildWindows(question->hwnd)) {
        if (child.className == "Button")
            buttons.push_back(child.title);
    }
    EXPECT_EQ(buttons, (std::vector<std::string>{"&Yes", "&No"}));
    ASSERT_TRUE(PressButton(question->hwnd, "No"));

    Settle(1s);
    EXPECT_TRUE(tarvex.running());
    EXPECT_TRUE(::IsWindow(form));
    EXPECT_EQ(tray.Count(NIM_DELETE), 0);
    // Still answering its icon.
    ASSERT_TRUE(tarvex.OpenTrayMenu());
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitForPopupMenuGone(tarvex.processId()));
}

TEST_F(Exit, YesEndsTheProgramAndRemovesItsIcon) {
    std::optional<WindowInfo> question = AskToExit();
    ASSERT_TRUE(question);
    ASSERT_TRUE(PressButton(question->hwnd, "Yes"));

    ASSERT_TRUE(tarvex.WaitForExit(20s));
    EXPECT_EQ(tarvex.ExitCode(), 0u);
    ASSERT_EQ(tray.Count(NIM_DELETE, form), 1);
    EXPECT_EQ(tray.calls().back().command, static_cast<DWORD>(NIM_DELETE));
    EXPECT_EQ(tray.calls().back().id, 1u);
    EXPECT_TRUE(TopLevelWindows(kMainFormClass).empty());
}

TEST_F(Exit, ACloseFromOutsideEndsQuietlyAndRemovesTheIcon) {
    ::PostMessageW(form, WM_CLOSE, 0, 0);
    ASSERT_TRUE(tarvex.WaitForExit(20s)) << "no quiet exit";
    EXPECT_EQ(tray.Count(NIM_DELETE, form), 1);
}
