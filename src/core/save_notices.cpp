#include "core/save_notices.h"

#include "core/message_box.h"

namespace SaveNotices {

std::string FailureText(Kind kind, std::string_view problem) {
    const bool menus = kind == Kind::MenuFile;
    std::string text = menus ? "The menus could not be saved.\n" : "The settings could not be saved.\n";
    text += problem;
    text += menus ? "\n\nThe old menu file was left as it was." : "\n\nThe old settings file was left as it was.";
    text += " The changes are in use until Tarvex ends. Saves that fail again in this run are not told.";
    return text;
}

void Told::Tell(Kind kind, std::string_view problem) {
    if (First(kind))
        MessageBoxes::MsgBox(FailureText(kind, problem), kTitle, MessageBoxes::kExclamation);
}

bool Told::First(Kind kind) {
    bool& told = told_[static_cast<std::size_t>(kind)];
    if (told)
        return false;
    told = true;
    return true;
}

} // namespace SaveNotices
