// Entry point of tarvex2.exe: the main form's start-up, then the message loop that
// runs the program until its exit.
#include "core/win/crash_handler.h"
#include "core/win/form1.h"
#include "core/win/message_box_win.h"
#include "core/win/program.h"
#include "win/com_apartment.h"
#include "win/text_convert.h"

#include "resource_ids.h"

#include <windows.h>

namespace {

int RunMessageLoop(Form1& form1) {
    MSG msg;
    while (::GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (form1.TranslatePreferencesMessage(msg))
            continue;
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
    return static_cast<int>(msg.wParam);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR arguments, int) {
    Win::ComApartment com;
    MessageBoxes::InstallWindowsHandler();
    Program program;
    program.instance = instance;
    program.iconResource = IDI_TARVEX;
    program.arguments = Win::Narrow(arguments ? arguments : L"");
    Form1 form1(program);
    CrashHandler crashHandler(form1);
    if (!form1.Create())
        return 1;
    if (form1.Form_Load() == Form1::LoadResult::EndProcess)
        return 0;
    return RunMessageLoop(form1);
}
