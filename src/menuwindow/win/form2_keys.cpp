// Form2 and the keyboard: the keys move the selection, choose and close; Ctrl with an
// item's hot key chooses it. The window that opened last has the keyboard.
#include "menuwindow/win/form2.h"

using namespace MenuWindow;

namespace {

Key KeyOf(WPARAM key) {
    switch (key) {
    case VK_UP: return Key::Up;
    case VK_DOWN: return Key::Down;
    case VK_HOME: return Key::Home;
    case VK_END: return Key::End;
    case VK_RETURN: return Key::Enter;
    case VK_RIGHT: return Key::Right;
    case VK_LEFT: return Key::Left;
    case VK_ESCAPE: return Key::Escape;
    default: return Key::Other;
    }
}

// What the key types in the keyboard's layout, unshifted; 0 for a key that types nothing
// (the top bit marks a dead key, which types nothing by itself).
char32_t CharacterOf(WPARAM key) {
    UINT character = ::MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_CHAR);
    return (character & 0x80000000u) ? 0 : static_cast<char32_t>(character & 0xFFFF);
}

} // namespace

Modifiers Form2::HeldModifiers() {
    return {::GetKeyState(VK_SHIFT) < 0, ::GetKeyState(VK_CONTROL) < 0, ::GetKeyState(VK_MENU) < 0};
}

Modifiers Form2::HeldModifiers(WPARAM mouseKeys) {
    return {(mouseKeys & MK_SHIFT) != 0, (mouseKeys & MK_CONTROL) != 0, ::GetKeyState(VK_MENU) < 0};
}

void Form2::Form_KeyDown(WPARAM key) {
    TypeKey(key, false, HeldModifiers(), static_cast<std::uint32_t>(::GetMessageTime()));
}

void Form2::Form_KeyUp(WPARAM key) {
    TypeKey(key, true, HeldModifiers(), static_cast<std::uint32_t>(::GetMessageTime()));
}

void Form2::TypeKey(WPARAM key, bool up, Modifiers modifiers, std::uint32_t time) {
    if (up)
        Apply(interaction_.KeyUp(scene_, CharacterOf(key), modifiers));
    else
        Apply(interaction_.KeyDown(scene_, KeyOf(key), CharacterOf(key), modifiers, Record().level, time));
}
