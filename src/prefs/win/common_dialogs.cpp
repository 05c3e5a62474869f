#include "prefs/win/common_dialogs.h"

#include "win/com_ptr.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <commdlg.h>
#include <shlobj.h>
#include <shobjidl.h>

#include <array>

namespace PrefsWin {

namespace {

// Frees a string the shell allocated.
struct ShellString {
    PWSTR text = nullptr;
    ShellString() = default;
    ShellString(const ShellString&) = delete;
    ShellString& operator=(const ShellString&) = delete;
    ~ShellString() { ::CoTaskMemFree(text); }
};

std::optional<std::string> RunFileDialog(HWND owner, std::string_view current, FILEOPENDIALOGOPTIONS options,
                                         const COMDLG_FILTERSPEC* filter) {
    Win::ComPtr<IFileOpenDialog> dialog;
    if (FAILED(::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileOpenDialog,
                                  reinterpret_cast<void**>(dialog.put()))))
        return std::nullopt;
    FILEOPENDIALOGOPTIONS existing = 0;
    dialog->GetOptions(&existing);
    dialog->SetOptions(existing | options | FOS_FORCEFILESYSTEM);
    if (filter)
        dialog->SetFileTypes(1, filter);
    if (!current.empty()) {
        Win::ComPtr<IShellItem> start;
        std::wstring path = Win::Widen(current);
        if (!(options & FOS_PICKFOLDERS)) {
            if (std::size_t slash = path.find_last_of(L'\\'); slash != std::wstring::npos) {
                dialog->SetFileName(path.substr(slash + 1).c_str());
                path.resize(slash);
            }
        }
        if (SUCCEEDED(::SHCreateItemFromParsingName(path.c_str(), nullptr, IID_IShellItem,
                                                    reinterpret_cast<void**>(start.put()))))
            dialog->SetFolder(start.operator->());
    }
    if (FAILED(dialog->Show(owner)))
        return std::nullopt;
    Win::ComPtr<IShellItem> result;
    ShellString path;
    if (FAILED(dialog->GetResult(result.put())) || FAILED(result->GetDisplayName(SIGDN_FILESYSPATH, &path.text)))
        return std::nullopt;
    return Win::Narrow(path.text);
}

} // namespace

std::optional<COLORREF> PickColour(HWND owner, COLORREF current) {
    static std::array<COLORREF, 16> custom = [] {
        std::array<COLORREF, 16> white{};
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    CHOOSECOLORW choose{};
    choose.lStructSize = sizeof choose;
    choose.hwndOwner = owner;
    choose.rgbResult = current;
    choose.lpCustColors = custom.data();
    choose.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
    if (!::ChooseColorW(&choose))
        return std::nullopt;
    return choose.rgbResult;
}

std::optional<FontChoice> PickFont(HWND owner, const FontChoice& current) {
    LOGFONTW font{};
    std::wstring face = Win::Widen(current.face);
    face.copy(font.lfFaceName, LF_FACESIZE - 1);
    Win::WindowDc screen(nullptr);
    font.lfHeight = -::MulDiv(current.points, ::GetDeviceCaps(screen.get(), LOGPIXELSY), 72);
    font.lfWeight = current.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = current.italic;
    font.lfCharSet = DEFAULT_CHARSET;
    CHOOSEFONTW choose{};
    choose.lStructSize = sizeof choose;
    choose.hwndOwner = owner;
    choose.lpLogFont = &font;
    choose.rgbColors = current.colour;
    choose.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT;
    if (!::ChooseFontW(&choose))
        return std::nullopt;
    return FontChoice{Win::Narrow(font.lfFaceName), choose.iPointSize / 10, font.lfWeight >= FW_BOLD,
                      font.lfItalic != 0, choose.rgbColors};
}

std::optional<std::string> PickFolder(HWND owner, std::string_view current) {
    return RunFileDialog(owner, current, FOS_PICKFOLDERS, nullptr);
}

std::optional<std::string> PickFile(HWND owner, std::string_view current, const wchar_t* kind,
                                    const wchar_t* patterns) {
    COMDLG_FILTERSPEC filter{kind, patterns};
    return RunFileDialog(owner, current, FOS_FILEMUSTEXIST, &filter);
}

} // namespace PrefsWin
