#include "prefs/win/themes_page.h"

#include "core/win/settings_store.h"
#include "prefs/themes_page.h"
#include "prefs/win/common_dialogs.h"
#include "themes/theme_files.h"
#include "themes/theme_package.h"
#include "themes/win/file_tree.h"
#include "themes/win/themes.h"
#include "win/text_convert.h"

#include <commctrl.h>

namespace PrefsWin {

namespace {

enum ControlId {
    kListId = ThemesPage::kFirstId, kNameId, kAuthorId, kWallpaperId, kFontsId,
    kLoadId, kSaveId, kDeleteId, kExportId, kImportId, kNoteId
};

constexpr int kListWidth = 90;
constexpr int kLabelWidth = 36;
constexpr int kRowHeight = 14;
constexpr int kButtonWidth = 64;
constexpr int kGap = 6;
constexpr int kNoteHeight = 20;

std::wstring Label(std::size_t which) {
    return Win::Widen(Preferences::kThemeLabels[which]);
}

bool Checked(HWND box) {
    return ::SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

} // namespace

ThemesPage::ThemesPage(HWND panel, RECT room, const DialogFont& font, Program& program, SettingsRec& working,
                       std::function<void()> changed, Preview preview)
    : program_(program), working_(working), changed_(std::move(changed)), preview_(std::move(preview)) {
    const int noteTop = room.bottom - font.Y(kNoteHeight);
    MakeChild(panel, WC_STATICW, Label(0).c_str(), SS_LEFT,
              {room.left, room.top, room.left + font.X(kListWidth), room.top + font.Y(9)});
    list_ = MakeChild(panel, WC_LISTBOXW, L"", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
                      {room.left, room.top + font.Y(11), room.left + font.X(kListWidth), noteTop - font.Y(kGap)},
                      kListId);
    const int left = room.left + font.X(kListWidth + kGap);
    const int fieldLeft = left + font.X(kLabelWidth);
    int top = room.top + font.Y(11);
    auto row = [&](std::size_t label, int id) {
        MakeChild(panel, WC_STATICW, Label(label).c_str(), SS_LEFT,
                  {left, top + font.Y(2), fieldLeft, top + font.Y(kRowHeight)});
        HWND field = MakeChild(panel, WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP,
                               {fieldLeft, top, room.right, top + font.Y(kRowHeight - 2)}, id);
        top += font.Y(kRowHeight + 2);
        return field;
    };
    name_ = row(1, kNameId);
    author_ = row(2, kAuthorId);
    auto check = [&](std::size_t label, int id) {
        HWND box = MakeChild(panel, WC_BUTTONW, Label(label).c_str(), BS_AUTOCHECKBOX | WS_TABSTOP,
                             {left, top, room.right, top + font.Y(kRowHeight - 2)}, id);
        top += font.Y(kRowHeight);
        return box;
    };
    wallpaper_ = check(3, kWallpaperId);
    fonts_ = check(4, kFontsId);
    top += font.Y(kGap);
    int buttonLeft = left;
    for (int id = kLoadId; id <= kImportId; ++id) {
        const std::wstring text =
            id == kImportId ? Win::Widen(Preferences::kImportLabel) : Label(static_cast<std::size_t>(5 + id - kLoadId));
        MakeChild(panel, WC_BUTTONW, text.c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                  {buttonLeft, top, buttonLeft + font.X(kButtonWidth), top + font.Y(kRowHeight)}, id);
        buttonLeft += font.X(kButtonWidth + kGap);
        if (id == kSaveId || id == kExportId) { // two a row: Load, Save; Delete, Export; Import
            buttonLeft = left;
            top += font.Y(kRowHeight + kGap);
        }
    }
    note_ = MakeChild(panel, WC_STATICW, L"", SS_LEFT, {room.left, noteTop, room.right, room.bottom}, kNoteId);
    Refresh();
}

std::optional<std::string> ThemesPage::Chosen() const {
    const LRESULT index = ::SendMessageW(list_, LB_GETCURSEL, 0, 0);
    if (index < 0 || static_cast<std::size_t>(index) >= themes_.size())
        return std::nullopt;
    return themes_[static_cast<std::size_t>(index)];
}

void ThemesPage::Refresh() {
    themes_ = Preferences::InstalledThemes(FileTree::FolderNames(program_.values.ThemesFolder));
    ::SendMessageW(list_, LB_RESETCONTENT, 0, 0);
    for (const std::string& theme : themes_)
        ::SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(theme).c_str()));
    ::SetWindowTextW(name_, Win::Widen(working_.GenThemeName).c_str());
    ::SetWindowTextW(author_, Win::Widen(working_.GenThemeAuthor).c_str());
    SetNote({});
    chosenLook_.reset();
    preview_(nullptr);
}

void ThemesPage::Select(const std::string& name) {
    for (std::size_t index = 0; index < themes_.size(); ++index)
        if (ThemeFiles::SamePath(themes_[index], name))
            ::SendMessageW(list_, LB_SETCURSEL, index, 0);
    ShowChosen();
}

// The chosen theme's name and author, and its look in the preview: the edited settings
// with the theme file's look keys and the theme's folder for pictures.
void ThemesPage::ShowChosen() {
    const std::optional<std::string> chosen = Chosen();
    if (!chosen)
        return;
    const std::string folder = ThemeFiles::ThemeFolder(program_.values.ThemesFolder, *chosen);
    SettingsRec look = working_;
    SettingsStore::Load(ThemeFiles::ThemeFile(folder, *chosen), true, look);
    look.BitmapsFolder = folder;
    ::SetWindowTextW(name_, Win::Widen(look.GenThemeName.empty() ? *chosen : look.GenThemeName).c_str());
    ::SetWindowTextW(author_, Win::Widen(look.GenThemeAuthor).c_str());
    chosenLook_ = std::move(look);
    preview_(&*chosenLook_);
}

// The theme's look goes into the edited settings: the program takes it for a moment, as
// loading does, and gives it back, so that nothing changes before OK or Apply.
void ThemesPage::cmdLoad_Click() {
    const SettingsRec before = program_.settings;
    const Themes::Outcome outcome =
        Themes::LoadTheme(program_, {Chosen().value_or(std::string()), Checked(wallpaper_), Checked(fonts_)});
    if (outcome == Themes::Outcome::Done)
        Preferences::TakeLook(program_.settings, working_);
    program_.settings = before;
    program_.openMenus.RepaintAll();
    if (outcome != Themes::Outcome::Done)
        return;
    chosenLook_.reset();
    preview_(nullptr);
    SetNote("Loaded " + working_.GenThemeName + ": OK or Apply keeps it.");
    changed_();
}

// The edited look is saved: the theme takes the pictures, sounds and keys the preview shows.
void ThemesPage::cmdSave_Click() {
    const std::string name = ControlText(name_);
    const Themes::Outcome outcome =
        Themes::SaveTheme(program_.values, working_, {name, ControlText(author_), Checked(wallpaper_), Checked(fonts_)});
    if (outcome == Themes::Outcome::Declined)
        return;
    Refresh();
    Select(name);
    SetNote("Saved as " + name + ".");
    changed_();
}

void ThemesPage::cmdDelete_Click() {
    if (Themes::DeleteTheme(program_.values, Chosen().value_or(std::string())) == Themes::Outcome::Done)
        Refresh();
}

void ThemesPage::cmdExport_Click() {
    const std::string name = Chosen().value_or(std::string());
    if (Themes::ExportTheme(program_.values, name) == Themes::Outcome::Done)
        SetNote("Exported to " + ThemePackage::ExportFile(program_.values.ExportFolder, name));
}

void ThemesPage::cmdImport_Click() {
    const std::optional<std::string> zip = PickFile(::GetAncestor(list_, GA_ROOT), program_.values.ExportFolder,
                                                    L"Theme packages", L"*.zip");
    if (!zip)
        return;
    const Themes::Imported imported = Themes::ImportPackage(program_.values, working_, *zip);
    if (imported.outcome != Themes::Outcome::Done)
        return;
    Refresh();
    Select(imported.themeName);
}

void ThemesPage::SetNote(const std::string& text) {
    ::SetWindowTextW(note_, Win::Widen(text).c_str());
}

bool ThemesPage::Command(int id, int code) {
    if (id < kFirstId || id > kNoteId)
        return false;
    if (id == kListId) {
        if (code == LBN_SELCHANGE)
            ShowChosen();
        return true;
    }
    if (code != BN_CLICKED)
        return true;
    switch (id) {
    case kLoadId: cmdLoad_Click(); break;
    case kSaveId: cmdSave_Click(); break;
    case kDeleteId: cmdDelete_Click(); break;
    case kExportId: cmdExport_Click(); break;
    case kImportId: cmdImport_Click(); break;
    default: break;
    }
    return true;
}

} // namespace PrefsWin
