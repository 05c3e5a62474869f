#include "prefs/win/preferences_window.h"

#include "core/message_box.h"
#include "core/win/settings_store.h"
#include "desktop/win/shell_actions.h"
#include "prefs/preference_pages.h"
#include "prefs/preference_writes.h"
#include "prefs/user_tasks.h"
#include "prefs/win/about_page.h"
#include "win/text_convert.h"

#include <commctrl.h>

using namespace Preferences;

namespace PrefsWin {

namespace {

enum ControlId { kApplyId = 10, kRevertId = 11, kHelpId = 12, kPageListId = 20 };

// The window's parts, in dialog units.
constexpr int kMargin = 7;
constexpr int kListWidth = 84;
constexpr int kHeadingHeight = 12;
constexpr int kPreviewWidth = 150;
constexpr int kPageHeight = 300;
constexpr int kButtonWidth = 50;
constexpr int kButtonGap = 4;

constexpr const char* kDiscardQuestion = "Discard the changes you made to the preferences?";
constexpr const char* kSettingsPage = "settings.htm";

} // namespace

PreferencesWindow::PreferencesWindow(Program& program, PreferencesHost& host)
    : program_(program), host_(host), working_(program.settings), preview_(program.values.ProgramFolder) {}

PreferencesWindow::~PreferencesWindow() = default;

bool PreferencesWindow::Create() {
    HINSTANCE instance = program_.instance ? program_.instance : ::GetModuleHandleW(nullptr);
    WNDCLASSEXW wc = Win::FormClass<PreferencesWindow>(instance, kClassName);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    wc.hIcon = Win::LoadProgramIcon(instance, program_.iconResource, ::GetSystemMetrics(SM_CXICON));
    wc.hIconSm = Win::LoadProgramIcon(instance, program_.iconResource, ::GetSystemMetrics(SM_CXSMICON));
    if (!Win::RegisterFormClass(wc))
        return false;

    // The size that shows every part, kept within the screen's work area.
    RECT frame{0, 0, font_.X(kMargin * 4 + kListWidth + kPageWidth + kPreviewWidth),
               font_.Y(kMargin * 3 + kHeadingHeight + kPageHeight + kButtonHeight)};
    const DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    ::AdjustWindowRectEx(&frame, style, FALSE, WS_EX_CONTROLPARENT);
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int width = std::min<int>(frame.right - frame.left, work.right - work.left);
    const int height = std::min<int>(frame.bottom - frame.top, work.bottom - work.top);
    const int left = work.left + (work.right - work.left - width) / 2;
    const int top = work.top + (work.bottom - work.top - height) / 2;
    if (!::CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_APPWINDOW, kClassName, kTitle, style, left, top, width, height,
                           nullptr, nullptr, instance, this))
        return false;

    pageList_ = MakeControl(WC_LISTBOXW, L"", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
                            kPageListId);
    heading_ = MakeControl(WC_STATICW, L"", SS_LEFT, 0);
    previewLabel_ = MakeControl(WC_STATICW, L"Preview", SS_LEFT, 0);
    auto button = [this](std::size_t which, DWORD style, int id) {
        return MakeControl(WC_BUTTONW, Win::Widen(kWindowButtons[which]).c_str(), style | WS_TABSTOP, id);
    };
    helpButton_ = button(0, BS_PUSHBUTTON, kHelpId);
    rightButtons_ = {button(1, BS_PUSHBUTTON, kRevertId), button(2, BS_DEFPUSHBUTTON, IDOK),
                     button(3, BS_PUSHBUTTON, IDCANCEL), button(4, BS_PUSHBUTTON, kApplyId)};
    SetFontOfChildren(window_.get(), font_.get());
    ::SendMessageW(heading_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.bold()), FALSE);
    for (const PageDef& page : Pages())
        ::SendMessageW(pageList_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(page.title).c_str()));
    CreatePages();
    Form_Size();
    ShowPage(0);
    ::EnableWindow(rightButtons_.back(), FALSE);
    ::ShowWindow(window_.get(), SW_SHOW);
    BringForward();
    ::SetFocus(pageList_);
    return true;
}

HWND PreferencesWindow::MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, int id) {
    return MakeChild(window_.get(), className, text, style, {}, id);
}

void PreferencesWindow::CreatePages() {
    for (const PageDef& def : Pages()) {
        auto page = std::make_unique<PreferencePage>(def.page, working_, font_, program_.values.ProgramFolder,
                                                     [this] { Working_Changed(); });
        std::vector<GroupRoom> rooms;
        if (def.page == PrefPage::SoundAnimation)
            rooms.push_back({"Sounds", SoundEvents::kRoomHeight});
        if (def.page == PrefPage::Global)
            rooms.push_back({"Start-up", StartupHotspots::kRoomHeight});
        if (def.page == PrefPage::TasklistSystray)
            rooms.push_back({kUserTasksGroup, UserTasksRoom::kRoomHeight});
        if (def.page == PrefPage::Hotspots)
            rooms.push_back({"Hotspots", HotspotsPage::kRoomHeight});
        if (def.page == PrefPage::MenuEditor)
            rooms.push_back({"Menus", MenuEditorPage::kRoomHeight});
        if (def.page == PrefPage::Themes)
            rooms.push_back({"Themes", ThemesPage::kRoomHeight});
        if (!page->Create(window_.get(), rooms))
            continue;
        if (def.page == PrefPage::SoundAnimation) {
            soundEvents_ = std::make_unique<SoundEvents>(page->hwnd(), page->Room("Sounds"), font_, working_,
                                                         program_.values.ProgramFolder, [this] { Working_Changed(); });
            page->roomCommands = [this](int id, int code) { return soundEvents_->Command(id, code); };
            SetFontOfChildren(page->hwnd(), font_.get());
        }
        if (def.page == PrefPage::Global) {
            startupHotspots_ = std::make_unique<StartupHotspots>(page->hwnd(), page->Room("Start-up"), font_,
                                                                 working_, [this] { Working_Changed(); });
            page->roomCommands = [this](int id, int code) { return startupHotspots_->Command(id, code); };
            SetFontOfChildren(page->hwnd(), font_.get());
        }
        if (def.page == PrefPage::TasklistSystray) {
            userTasks_ = std::make_unique<UserTasksRoom>(page->hwnd(), page->Room(kUserTasksGroup), font_, working_,
                                                         [this] { Working_Changed(); });
            page->roomCommands = [this](int id, int code) { return userTasks_->Command(id, code); };
            page->roomNotes = {userTasks_->note()};
            SetFontOfChildren(page->hwnd(), font_.get());
        }
        if (def.page == PrefPage::Hotspots) {
            hotspotsPage_ = std::make_unique<HotspotsPage>(page->hwnd(), page->Room("Hotspots"), font_, working_,
                                                           MenuEditor::MenuNames(program_.menus), program_.commandTable,
                                                           [this] { Working_Changed(); });
            page->roomCommands = [this](int id, int code) { return hotspotsPage_->Command(id, code); };
            SetFontOfChildren(page->hwnd(), font_.get());
        }
        if (def.page == PrefPage::MenuEditor)
            MakeMenuEditor(*page);
        if (def.page == PrefPage::Themes) {
            themesPage_ = std::make_unique<ThemesPage>(
                page->hwnd(), page->Room("Themes"), font_, program_, working_, [this] { Working_Changed(); },
                [this](const SettingsRec* look) {
                    themeLook_ = look;
                    UpdatePreview();
                });
            page->roomCommands = [this](int id, int code) { return themesPage_->Command(id, code); };
            SetFontOfChildren(page->hwnd(), font_.get());
        }
        if (def.page == PrefPage::About)
            MakeAboutPage(page->hwnd(), font_, program_);
        pages_.push_back(std::move(page));
    }
}

void PreferencesWindow::MakeMenuEditor(PreferencePage& page) {
    // Hotspots that show a renamed menu follow it, as the items that open it do.
    auto renamed = [this](const std::string& from, const std::string& to) {
        if (MenuEditor::RenameMenuOfHotspots(working_.HotSpots, from, to) > 0 && hotspotsPage_)
            hotspotsPage_->Refresh();
    };
    menuEditor_ = std::make_unique<MenuEditorPage>(page.hwnd(), page.Room("Menus"), font_, program_,
                                                   [this] { Menus_Changed(); }, renamed);
    page.roomCommands = [this](int id, int code) { return menuEditor_->Command(id, code); };
    page.roomNotify = [this](const NMHDR& header) { return menuEditor_->Notify(header); };
    page.roomNotes = {menuEditor_->note()};
    SetFontOfChildren(page.hwnd(), font_.get());
}

// The hotspots page offers the menus as the editor has them.
void PreferencesWindow::Menus_Changed() {
    if (hotspotsPage_ && menuEditor_)
        hotspotsPage_->SetMenuNames(MenuEditor::MenuNames(menuEditor_->Working()));
    Working_Changed();
}

// The page list and the buttons keep their size; the page and the preview share what is left.
void PreferencesWindow::Form_Size() {
    RECT client{};
    ::GetClientRect(window_.get(), &client);
    const int margin = font_.X(kMargin);
    const int gapY = font_.Y(kMargin);
    const int buttonHeight = font_.Y(kButtonHeight);
    const int buttonWidth = font_.X(kButtonWidth);
    const int buttonsTop = client.bottom - gapY - buttonHeight;
    const int listRight = margin + font_.X(kListWidth);
    const int pageLeft = listRight + margin;
    const int pageRight = pageLeft + font_.X(kPageWidth) + ::GetSystemMetrics(SM_CXVSCROLL);
    const int headingBottom = gapY + font_.Y(kHeadingHeight);
    const int pageBottom = buttonsTop - gapY;
    auto place = [](HWND control, int left, int top, int right, int bottom) {
        ::SetWindowPos(control, nullptr, left, top, std::max(0, right - left), std::max(0, bottom - top),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    };
    place(pageList_, margin, gapY, listRight, pageBottom);
    place(heading_, pageLeft, gapY, pageRight, headingBottom);
    place(previewLabel_, pageRight + margin, gapY, client.right - margin, headingBottom);
    for (auto& page : pages_)
        page->Place({pageLeft, headingBottom, pageRight, pageBottom});
    place(helpButton_, margin, buttonsTop, margin + buttonWidth, buttonsTop + buttonHeight);
    int right = client.right - margin;
    for (auto button = rightButtons_.rbegin(); button != rightButtons_.rend(); ++button) {
        place(*button, right - buttonWidth, buttonsTop, right, buttonsTop + buttonHeight);
        right -= buttonWidth + font_.X(kButtonGap);
    }
    previewTopLeft_ = {pageRight + margin, headingBottom};
    UpdatePreview();
}

// Moved onto a monitor of another scaling: every control keeps its place in dialog units,
// so each is scaled by the change and takes the font made for the new DPI. Without the
// rectangle the system suggests, the window grows or shrinks from its top-left corner.
void PreferencesWindow::Form_DpiChanged(int dpi, const RECT* suggested) {
    const int from = font_.dpi();
    if (dpi <= 0 || dpi == from)
        return;
    for (auto& page : pages_)
        page->ScrollToTop();
    DialogFont next(dpi);
    ScaleChildren(window_.get(), from, dpi);
    SetFontOfChildren(window_.get(), next.get());
    ::SendMessageW(heading_, WM_SETFONT, reinterpret_cast<WPARAM>(next.bold()), FALSE);
    font_ = std::move(next); // the controls let the old fonts go first
    for (auto& page : pages_)
        page->FontChanged();
    RECT target{};
    if (suggested) {
        target = *suggested;
    } else {
        ::GetWindowRect(window_.get(), &target);
        target.right = target.left + ::MulDiv(target.right - target.left, dpi, from);
        target.bottom = target.top + ::MulDiv(target.bottom - target.top, dpi, from);
    }
    ::SetWindowPos(window_.get(), nullptr, target.left, target.top, target.right - target.left,
                   target.bottom - target.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Form_Size();
    ::RedrawWindow(window_.get(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void PreferencesWindow::ShowPage(int index) {
    if (index < 0 || index >= static_cast<int>(pages_.size()))
        return;
    current_ = index;
    if (hotspotsPage_)
        hotspotsPage_->HideZones();
    ::SendMessageW(pageList_, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    ::SetWindowTextW(heading_, Win::Widen(PageOf(pages_[static_cast<std::size_t>(index)]->page()).heading).c_str());
    for (std::size_t i = 0; i < pages_.size(); ++i)
        ::ShowWindow(pages_[i]->hwnd(), static_cast<int>(i) == index ? SW_SHOWNA : SW_HIDE);
    UpdatePreview(); // a theme chosen on the Themes page shows on that page alone
}

void PreferencesWindow::Working_Changed() {
    UpdatePreview();
    ::EnableWindow(rightButtons_.back(), Dirty());
}

void PreferencesWindow::UpdatePreview() {
    const bool onThemes = current_ >= 0 && pages_[static_cast<std::size_t>(current_)]->page() == PrefPage::Themes;
    preview_.Show(window_.get(), previewTopLeft_, onThemes && themeLook_ ? *themeLook_ : working_);
}

bool PreferencesWindow::Dirty() const {
    return !(working_ == program_.settings) || (menuEditor_ && menuEditor_->Dirty());
}

void PreferencesWindow::BringForward() {
    HWND hwnd = window_.get();
    if (::IsIconic(hwnd))
        ::ShowWindow(hwnd, SW_RESTORE);
    ::SetForegroundWindow(hwnd);
}

bool PreferencesWindow::TranslateDialogMessage(MSG& message) {
    HWND hwnd = window_.get();
    if (!hwnd || (message.hwnd != hwnd && !::IsChild(hwnd, message.hwnd)))
        return false;
    // Ctrl+Tab and Ctrl+Shift+Tab turn the pages, as in the system's own property sheets.
    if (message.message == WM_KEYDOWN && message.wParam == VK_TAB && (::GetKeyState(VK_CONTROL) & 0x8000)) {
        int count = static_cast<int>(pages_.size());
        int step = (::GetKeyState(VK_SHIFT) & 0x8000) ? count - 1 : 1;
        ShowPage((current_ + step) % count);
        return true;
    }
    if (!::IsDialogMessageW(hwnd, &message))
        return false;
    if (current_ >= 0)
        pages_[static_cast<std::size_t>(current_)]->EnsureVisible(::GetFocus());
    return true;
}

bool PreferencesWindow::cmdApply_Click() {
    // The menu file tells the user itself when it could not be written.
    if (menuEditor_ && !menuEditor_->Apply())
        return false;
    if (!Dirty()) {
        ::EnableWindow(rightButtons_.back(), FALSE);
        return true;
    }
    SettingsRec before = program_.settings;
    program_.settings = working_;
    ProfileRewrite::Result saved =
        SettingsStore::SaveAtomically(SettingsFile(program_.values), PreferencesWrites(program_.settings));
    host_.SettingsApplied(before);
    ::EnableWindow(rightButtons_.back(), FALSE);
    if (!saved.saved)
        program_.saveNotices.Tell(SaveNotices::Kind::SettingsFile, saved.problem);
    return saved.saved;
}

void PreferencesWindow::cmdOK_Click() {
    if (cmdApply_Click())
        Close();
}

void PreferencesWindow::cmdCancel_Click() {
    if (Dirty() && MessageBoxes::MsgBox(kDiscardQuestion, "Tarvex Preferences",
                                        MessageBoxes::kYesNo | MessageBoxes::kQuestion) != MessageBoxes::kYes)
        return;
    Close();
}

// The settings file as it stands now, in the program and on every page.
void PreferencesWindow::cmdRevert_Click() {
    SettingsRec before = program_.settings;
    SettingsStore::Load(SettingsFile(program_.values), false, program_.settings);
    working_ = program_.settings;
    for (auto& page : pages_)
        page->Refresh();
    if (soundEvents_)
        soundEvents_->Refresh();
    if (startupHotspots_)
        startupHotspots_->Refresh();
    if (hotspotsPage_)
        hotspotsPage_->Refresh();
    if (userTasks_)
        userTasks_->Refresh();
    if (menuEditor_)
        menuEditor_->Refresh();
    if (themesPage_)
        themesPage_->Refresh();
    if (!(before == program_.settings))
        host_.SettingsApplied(before);
    Menus_Changed();
}

void PreferencesWindow::cmdHelp_Click() {
    ShellActions::OpenHelpPage(program_.values.HelpFolder, kSettingsPage);
}

void PreferencesWindow::Close() {
    window_.reset();
    host_.PreferencesClosed(); // this object may be gone afterwards
}

// The dialog keys ask for the next control this way (Tab, Shift+Tab, a label's mnemonic),
// and only a dialog box's own window procedure would answer: the window does as one does.
void PreferencesWindow::Form_NextDlgCtl(WPARAM which, LPARAM direct) {
    HWND target = LOWORD(direct) ? reinterpret_cast<HWND>(which)
                                 : ::GetNextDlgTabItem(window_.get(), ::GetFocus(), which != 0);
    if (!target)
        return;
    ::SetFocus(target);
    if (::SendMessageW(target, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
        ::SendMessageW(target, EM_SETSEL, 0, -1);
}

LRESULT PreferencesWindow::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        switch (LOWORD(wParam)) {
        case IDOK: cmdOK_Click(); return 0;
        case IDCANCEL: cmdCancel_Click(); return 0;
        case kApplyId: cmdApply_Click(); return 0;
        case kRevertId: cmdRevert_Click(); return 0;
        case kHelpId: cmdHelp_Click(); return 0;
        case kPageListId:
            if (HIWORD(wParam) == LBN_SELCHANGE)
                ShowPage(static_cast<int>(::SendMessageW(pageList_, LB_GETCURSEL, 0, 0)));
            return 0;
        default: return 0;
        }
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED && !pages_.empty())
            Form_Size();
        return 0;
    case WM_DPICHANGED:
        Form_DpiChanged(HIWORD(wParam), reinterpret_cast<const RECT*>(lParam));
        return 0;
    case WM_CLOSE:
        cmdCancel_Click();
        return 0;
    case WM_NEXTDLGCTL:
        Form_NextDlgCtl(wParam, lParam);
        return 0;
    case WM_GETMINMAXINFO: {
        auto* info = reinterpret_cast<MINMAXINFO*>(lParam);
        info->ptMinTrackSize = {font_.X(kMargin * 3 + kListWidth + kPageWidth / 2), font_.Y(160)};
        return 0;
    }
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

} // namespace PrefsWin
