#include "menuwindow/interaction/menu_interaction.h"

#include "core/text.h"
#include "menuwindow/layout/item_list.h"

#include <algorithm>

namespace MenuWindow {

namespace {

// Later effects win over earlier ones; timer orders add up, in order.
void Merge(Effects& into, Effects from) {
    if (from.capture != Capture::Keep)
        into.capture = from.capture;
    into.timers.insert(into.timers.end(), from.timers.begin(), from.timers.end());
    if (from.first)
        into.first = from.first;
    if (from.bar)
        into.bar = from.bar;
    if (from.flash)
        into.flash = from.flash;
    if (from.action != MenuAction::None) {
        into.action = from.action;
        into.item = from.item;
        into.ctrlHeld = from.ctrlHeld;
        into.closeSubMenuFirst = from.closeSubMenuFirst;
    }
}

void Stop(Effects& effects, MenuTimer timer) {
    effects.timers.push_back({timer, 0});
}

void Start(Effects& effects, MenuTimer timer, int interval) {
    effects.timers.push_back({timer, std::max(1, interval)});
}

int ItemUnder(const MenuScene& scene, Point point) {
    Hit hit = HitInWindow(scene, point);
    return hit.kind == Hit::Kind::Item ? hit.item : 0;
}

bool IsScrollButton(Hit hit) {
    return hit.kind == Hit::Kind::ScrollTowardsStart || hit.kind == Hit::Kind::ScrollTowardsEnd;
}

} // namespace

int StepUp(int item, int count) {
    if (count < 1)
        return 0;
    return item <= 1 || item > count ? count : item - 1;
}

int StepDown(int item, int count) {
    if (count < 1)
        return 0;
    return item >= count || item < 1 ? 1 : item + 1;
}

int SearchByLetter(const DisplayList& list, int selected, char32_t character) {
    if (character == 0)
        return 0;
    char32_t wanted = Text::FoldCase(character);
    auto matches = [&](int item) { return Text::FoldCase(Text::FirstCodePoint(list.Item(item).LABEL)) == wanted; };
    for (int item = std::max(selected, 0) + 1; item <= list.Count(); ++item)
        if (matches(item))
            return item;
    for (int item = 1; item <= list.Count(); ++item)
        if (matches(item))
            return item;
    return 0;
}

namespace {

// The label begins with the typed text, each character folded as the letter search folds.
bool StartsWithFolded(std::string_view label, std::string_view typed) {
    while (!typed.empty()) {
        if (label.empty() || Text::FoldCase(Text::FirstCodePoint(label)) != Text::FoldCase(Text::FirstCodePoint(typed)))
            return false;
        label.remove_prefix(Text::FirstCodePointLength(label));
        typed.remove_prefix(Text::FirstCodePointLength(typed));
    }
    return true;
}

// The text is the letter again and again.
bool Repeats(std::string_view text, std::string_view letter) {
    for (; !text.empty(); text.remove_prefix(letter.size()))
        if (!text.starts_with(letter))
            return false;
    return true;
}

} // namespace

int SearchByPrefix(const DisplayList& list, int selected, std::string_view typed) {
    const int count = list.Count();
    for (int step = 0; step < count; ++step) {
        const int item = (std::max(selected, 1) - 1 + step) % count + 1;
        if (StartsWithFolded(list.Item(item).LABEL, typed))
            return item;
    }
    return 0;
}

int ItemByHotkey(const DisplayList& list, char32_t character) {
    char32_t wanted = Text::FoldCase(character);
    for (int item = 1; item <= list.Count(); ++item) {
        const std::string& hotkey = list.Item(item).HOTKEY;
        if (HasHotkey(hotkey) && Text::FoldCase(Text::FirstCodePoint(hotkey)) == wanted)
            return item;
    }
    return 0;
}

Effects MenuInteraction::Press(const MenuScene& scene, MouseButton button, Modifiers modifiers, Point point) {
    Effects effects;
    state_.lastButton = button;
    state_.lastModifiers = modifiers;
    state_.lastPoint = point;
    if (button == MouseButton::Left)
        Stop(effects, MenuTimer::DropDown);
    Hit hit = HitInWindow(scene, point);
    if (IsScrollButton(hit)) {
        if (button == MouseButton::Left && !scene.look.MenuAutoScroll)
            Merge(effects, StartScrolling(scene, hit.kind == Hit::Kind::ScrollTowardsEnd));
        return effects;
    }
    if (hit.kind == Hit::Kind::Item)
        Merge(effects, PressItem(scene, hit.item, button, modifiers));
    return effects;
}

Effects MenuInteraction::PressItem(const MenuScene& scene, int item, MouseButton button, Modifiers modifiers) {
    Effects effects;
    state_.lastButton = button;
    state_.lastModifiers = modifiers;
    state_.selected = item;
    state_.pressed = true;
    state_.bar = {item, true};
    effects.bar = state_.bar;
    if (scene.look.SelBar && scene.look.SelBarBlink) {
        state_.flashCount = 0;
        Start(effects, MenuTimer::FlashSelBar, kFlashInterval);
    }
    return effects;
}

Effects MenuInteraction::Release(const MenuScene& scene, MouseButton button, Modifiers modifiers, Point point) {
    Effects effects;
    effects.capture = Capture::Release;
    if (state_.subMenuJustOpened != 0 && state_.subMenuJustOpened != state_.selected)
        state_.subMenuJustOpened = 0;
    int pressedItem = state_.pressed && button == state_.lastButton ? state_.selected : 0;
    if (state_.pressed) {
        state_.pressed = false;
        state_.bar.pressed = false;
        effects.bar = state_.bar;
    }
    if ((state_.scrollingTowardsEnd || state_.scrollingTowardsStart) && !scene.look.MenuAutoScroll)
        StopScrolling(effects);
    int item = scene.layout.surface.Contains(point) ? ItemUnder(scene, point) : 0;
    if (item == 0 || item != pressedItem) {
        if (scene.look.SelBar && state_.bar.selected != 0) {
            state_.bar = {};
            effects.bar = state_.bar;
        }
        return effects;
    }
    Merge(effects, ReleaseItem(scene, item, button, modifiers));
    return effects;
}

Effects MenuInteraction::ReleaseItem(const MenuScene& scene, int item, MouseButton button, Modifiers modifiers) {
    Effects effects;
    MenuWindow::Release release;
    release.button = button;
    release.pressedItem = item;
    release.releasedItem = item;
    release.type = scene.list.Item(item).TYPE;
    release.subMenuJustOpened = state_.subMenuJustOpened == item;
    release.subMenuOpen = state_.openSubMenu == item;
    release.toggleSubMenus = scene.look.MenuToggleSubMenus;
    release.emptyList = scene.list.empty;
    ReleaseAction action = DecideRelease(release);
    bool folderFirstClick = release.type == kItemFolderPath && !release.subMenuJustOpened;
    if (folderFirstClick && action != ReleaseAction::ShowProperties && action != ReleaseAction::Nothing) {
        state_.subMenuJustOpened = item;
        Start(effects, MenuTimer::DoubleClick, kDoubleClickInterval);
    }
    effects.item = item;
    switch (action) {
    case ReleaseAction::Nothing:
        if (scene.look.SelBar) {
            state_.bar = {};
            effects.bar = state_.bar;
        }
        break;
    case ReleaseAction::ShowProperties:
        effects.action = MenuAction::ShowProperties;
        break;
    case ReleaseAction::OpenSubMenu:
        effects.action = MenuAction::OpenSubMenu;
        break;
    case ReleaseAction::CloseSubMenu:
        effects.action = MenuAction::CloseSubMenu;
        break;
    case ReleaseAction::KeepSubMenu:
        break;
    case ReleaseAction::Choose:
        state_.subMenuJustOpened = 0;
        effects.closeSubMenuFirst = state_.openSubMenu != 0;
        state_.openSubMenu = 0;
        effects.action = MenuAction::Choose;
        effects.ctrlHeld = modifiers.ctrl;
        break;
    }
    return effects;
}

Effects MenuInteraction::Move(const MenuScene& scene, Point point) {
    return MoveOver(scene, point, true);
}

// With MenuAimAtSubMenus on, a sub-menu open and the cursor on its way there, inside the
// triangle from where it set out to the sub-menu's near side, the item it crosses is not
// the user's wish: nothing changes until the cursor rests or leaves the triangle.
bool MenuInteraction::AimsAtSubMenu(const MenuScene& scene, Point point, int item) const {
    if (!scene.look.MenuAimAtSubMenus || state_.pressed || state_.openSubMenu == 0 || item == state_.openSubMenu ||
        !state_.aimFrom || !state_.subMenuEdge)
        return false;
    return InTriangle(point, *state_.aimFrom, state_.subMenuEdge->from, state_.subMenuEdge->to);
}

Effects MenuInteraction::MoveOver(const MenuScene& scene, Point point, bool aiming) {
    Effects effects;
    if (state_.discardMove) {
        state_.discardMove = false;
        return effects;
    }
    const MenuLook& look = scene.look;
    if (!scene.layout.surface.Contains(point)) {
        effects.capture = Capture::Release;
        Stop(effects, MenuTimer::DropDown);
        state_.delayElapsed = false;
        if (state_.pressed) {
            state_.pressed = false;
            state_.bar.pressed = false;
            effects.bar = state_.bar;
        }
        if (look.SelBar && state_.bar.selected != 0 && state_.bar.selected != state_.openSubMenu) {
            state_.bar = {};
            effects.bar = state_.bar;
        }
        return effects;
    }
    if (state_.pressed || (look.SelBar && look.SelBarFollowMouse))
        effects.capture = Capture::Take;

    Hit hit = HitInWindow(scene, point);
    int item = hit.kind == Hit::Kind::Item ? hit.item : 0;
    if (aiming && AimsAtSubMenu(scene, point, item)) {
        state_.aimResting = true;
        Start(effects, MenuTimer::AimRest, AimRest(look.MenuDropDownDelay));
        return effects;
    }
    if (state_.aimResting) {
        state_.aimResting = false;
        Stop(effects, MenuTimer::AimRest);
    }
    state_.lastMove = point;
    if (item != 0 && item == state_.openSubMenu)
        state_.aimFrom = point;
    if (state_.pressed && item != 0 && item != state_.selected) {
        state_.selected = item;
        state_.bar = {item, true};
        effects.bar = state_.bar;
    }
    state_.hovered = item;
    if (look.MenuAutoScroll && IsScrollButton(hit))
        Merge(effects, StartScrolling(scene, hit.kind == Hit::Kind::ScrollTowardsEnd));

    if (look.MenuAutoDropDown) {
        if (state_.hovered != state_.timed) {
            Stop(effects, MenuTimer::DropDown);
            state_.timed = state_.hovered;
            state_.delayElapsed = false;
            if (state_.timed != 0)
                Start(effects, MenuTimer::DropDown, look.MenuDropDownDelay);
        } else if (state_.delayElapsed) {
            state_.delayElapsed = false;
            if (item != 0 && !OpensSubMenu(scene.list.Item(item).TYPE)) {
                if (state_.openSubMenu != 0)
                    effects.action = MenuAction::CloseSubMenu;
            } else if (item != 0 && state_.openSubMenu != item) {
                effects.action = MenuAction::OpenSubMenu;
                effects.item = item;
            }
        }
    }

    if (look.SelBar && look.SelBarFollowMouse && item != 0 && state_.bar.selected != item) {
        state_.selected = item;
        state_.bar = {item, state_.pressed};
        effects.bar = state_.bar;
    }
    return effects;
}

Effects MenuInteraction::DropDownTick(const MenuScene& scene, std::optional<Point> cursor) {
    Effects effects;
    Stop(effects, MenuTimer::DropDown);
    state_.delayElapsed = true;
    if (cursor) {
        Merge(effects, Move(scene, *cursor));
    } else {
        state_.timed = 0;
        state_.delayElapsed = false;
    }
    return effects;
}

// Where the cursor rests, the menu takes the move as meant; an aim can set out again from there.
Effects MenuInteraction::AimRestTick(const MenuScene& scene, std::optional<Point> cursor) {
    Effects effects;
    Stop(effects, MenuTimer::AimRest);
    state_.aimResting = false;
    if (cursor && scene.layout.surface.Contains(*cursor)) {
        state_.aimFrom = *cursor;
        Merge(effects, MoveOver(scene, *cursor, false));
    }
    return effects;
}

Effects MenuInteraction::DoubleClickTick() {
    Effects effects;
    state_.subMenuJustOpened = 0;
    Stop(effects, MenuTimer::DoubleClick);
    return effects;
}

// Odd ticks hide the bar, even ones show the button as the selection has it, so the
// flash ends where it began.
Effects MenuInteraction::FlashTick() {
    Effects effects;
    int item = state_.bar.selected;
    if (item != 0) {
        bool hidden = state_.flashCount % 2 == 1;
        effects.flash = {item, hidden ? ButtonState::Normal : StateOf(item, state_.bar, true)};
    }
    ++state_.flashCount;
    if (item == 0 || state_.flashCount >= kFlashTicks) {
        state_.flashCount = 0;
        Stop(effects, MenuTimer::FlashSelBar);
    }
    return effects;
}

Effects MenuInteraction::StartScrolling(const MenuScene& scene, bool towardsEnd) {
    Effects effects;
    bool running = towardsEnd ? state_.scrollingTowardsEnd : state_.scrollingTowardsStart;
    if (running)
        return effects;
    state_.scrollingTowardsEnd = towardsEnd;
    state_.scrollingTowardsStart = !towardsEnd;
    state_.scrollTicks = 0;
    Start(effects, MenuTimer::Scroll, scene.look.MenuScrollSpeed);
    return effects;
}

void MenuInteraction::StopScrolling(Effects& effects) {
    state_.scrollingTowardsEnd = false;
    state_.scrollingTowardsStart = false;
    state_.scrollTicks = 0;
    Stop(effects, MenuTimer::Scroll);
}

Effects MenuInteraction::ScrollTick(const MenuScene& scene, std::optional<Point> cursor) {
    Effects effects;
    if (!state_.scrollingTowardsEnd && !state_.scrollingTowardsStart) {
        Stop(effects, MenuTimer::Scroll);
        return effects;
    }
    ++state_.scrollTicks;
    if (state_.scrollTicks == 1) {
        Start(effects, MenuTimer::Scroll, kScrollPause);
        if (!scene.look.ScrollShowSelBar && state_.bar.selected != 0) {
            state_.bar = {};
            effects.bar = state_.bar;
        }
    } else if (state_.scrollTicks == 2) {
        Start(effects, MenuTimer::Scroll, scene.look.MenuScrollSpeed);
    }
    Hit::Kind wanted = state_.scrollingTowardsEnd ? Hit::Kind::ScrollTowardsEnd : Hit::Kind::ScrollTowardsStart;
    if (!cursor || HitInWindow(scene, *cursor).kind != wanted) {
        StopScrolling(effects);
        return effects;
    }
    const ScrollView& view = scene.view();
    int first = view.first;
    if (state_.scrollingTowardsEnd && first < LargestFirst(view))
        ++first;
    else if (state_.scrollingTowardsStart && first > 0)
        --first;
    if (first != view.first)
        effects.first = first;
    bool atEnd = state_.scrollingTowardsEnd ? first >= LargestFirst(WithFirst(view, first)) : first == 0;
    if (atEnd)
        StopScrolling(effects);
    return effects;
}

Effects MenuInteraction::MakeButtonVisible(const MenuScene& scene, int item) {
    Effects effects;
    if (item < 1 || item > scene.list.Count())
        return effects;
    state_.selected = item;
    state_.bar = {item, false};
    effects.bar = state_.bar;
    int first = FirstToShow(scene.view(), item);
    if (first != scene.view().first)
        effects.first = first;
    return effects;
}

Effects MenuInteraction::KeyDown(const MenuScene& scene, Key key, char32_t character, Modifiers modifiers, int level,
                                 std::uint32_t time) {
    if (modifiers.Any() || !scene.look.SelBar)
        return {};
    if (key != Key::Other)
        state_.typed.clear();
    int count = scene.list.Count();
    int selected = state_.selected >= 1 && state_.selected <= count ? state_.selected : 0;
    switch (key) {
    case Key::Up:
        return MakeButtonVisible(scene, StepUp(selected, count));
    case Key::Down:
        return MakeButtonVisible(scene, StepDown(selected, count));
    case Key::Home:
        return MakeButtonVisible(scene, count > 0 ? 1 : 0);
    case Key::End:
        return MakeButtonVisible(scene, count);
    case Key::Enter:
    case Key::Right: {
        if (selected == 0)
            return {};
        Effects effects = PressItem(scene, selected, MouseButton::Left, {});
        state_.pressed = false;
        state_.bar.pressed = false;
        effects.bar = state_.bar;
        Merge(effects, ReleaseItem(scene, selected, MouseButton::Left, {}));
        return effects;
    }
    case Key::Left:
        if (level > 1) {
            Effects effects;
            effects.action = MenuAction::CloseMenu;
            return effects;
        }
        return {};
    case Key::Escape: {
        Effects effects;
        effects.action = MenuAction::CloseMenu;
        return effects;
    }
    case Key::Other:
        break;
    }
    // A letter within the delay of the one before extends the search; any other starts
    // a new one, and a single letter (or the same one again) searches exactly as the
    // first-letter search does.
    const bool extends = scene.look.MenuTypeAhead && character != 0 && !state_.typed.empty() &&
                         time - state_.typedAt <= kTypeAheadMilliseconds;
    state_.typedAt = time;
    if (!extends) {
        state_.typed = character != 0 ? Text::Utf8(character) : std::string();
        return MakeButtonVisible(scene, SearchByLetter(scene.list, selected, character));
    }
    // The same letter again steps on to the next item it starts, as a single letter does.
    const std::string letter = Text::Utf8(character);
    const bool sameLetter = Repeats(state_.typed, letter);
    state_.typed += letter;
    const int found = sameLetter ? 0 : SearchByPrefix(scene.list, selected, state_.typed);
    if (found != 0)
        return MakeButtonVisible(scene, found);
    // Letters that lead nowhere give way to the last one alone.
    if (!sameLetter)
        state_.typed = letter;
    return MakeButtonVisible(scene, SearchByLetter(scene.list, selected, character));
}

// Hot keys work when MenuHotKeys is anything but 0. The choice closes the menus as a
// click would: the Ctrl that makes the key a hot key is not the Ctrl that keeps them open.
Effects MenuInteraction::KeyUp(const MenuScene& scene, char32_t character, Modifiers modifiers) {
    if (scene.look.MenuHotKeys == 0 || character == U' ' || character == 0 || !modifiers.ctrl)
        return {};
    return ChooseItem(scene, ItemByHotkey(scene.list, character));
}

Effects MenuInteraction::ChooseItem(const MenuScene& scene, int item) {
    if (item < 1 || item > scene.list.Count())
        return {};
    Effects effects = MakeButtonVisible(scene, item);
    Merge(effects, PressItem(scene, item, MouseButton::Left, {}));
    state_.pressed = false;
    state_.bar.pressed = false;
    effects.bar = state_.bar;
    Merge(effects, ReleaseItem(scene, item, MouseButton::Left, {}));
    return effects;
}

// An aim sets out from the item's button only: a sub-menu opened by the keyboard with the
// mouse elsewhere waits for the mouse to come to its item.
void MenuInteraction::SubMenuOpened(int item, std::optional<Edge> nearEdge) {
    state_.openSubMenu = item;
    state_.subMenuEdge = nearEdge;
    state_.aimFrom.reset();
    if (state_.hovered == item)
        state_.aimFrom = state_.lastMove;
}

int MenuInteraction::SubMenuClosed() {
    int item = state_.openSubMenu;
    state_.openSubMenu = 0;
    state_.subMenuEdge.reset();
    state_.aimFrom.reset();
    return item;
}

Effects MenuInteraction::StopAll() {
    Effects effects;
    effects.capture = Capture::Release;
    for (MenuTimer timer : {MenuTimer::Scroll, MenuTimer::DropDown, MenuTimer::DoubleClick, MenuTimer::FlashSelBar,
                            MenuTimer::SetForeground, MenuTimer::AimRest})
        Stop(effects, timer);
    state_.aimResting = false;
    state_.scrollingTowardsEnd = state_.scrollingTowardsStart = false;
    state_.scrollTicks = 0;
    state_.pressed = false;
    state_.timed = 0;
    state_.delayElapsed = false;
    state_.subMenuJustOpened = 0;
    state_.flashCount = 0;
    return effects;
}

Effects MenuInteraction::ClearBar() {
    Effects effects;
    state_.bar = {};
    effects.bar = state_.bar;
    return effects;
}

} // namespace MenuWindow
