#include "support/key_by_key.h"

#include "core/win/ini_handler.h"
#include "win/text_convert.h"

#include <windows.h>

namespace TestSupport {

void WriteKeyByKey(const std::string& file, const ProfileWrites& writes) {
    IniHandler::CreateUnicodeProfile(file);
    const std::wstring wideFile = Win::Widen(file);
    for (const ProfileWrite& w : writes)
        ::WritePrivateProfileStringW(Win::Widen(w.section).c_str(), Win::Widen(w.key).c_str(),
                                     Win::Widen(w.value).c_str(), wideFile.c_str());
}

} // namespace TestSupport
