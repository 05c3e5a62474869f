#include "menuwindow/win/menu_accessible.h"

#include "win/text_convert.h"

#include <optional>

using namespace MenuWindow;

namespace {

// The child a VARIANT names: 0 for the menu itself, i for item i; none for anything else.
std::optional<int> ChildOf(const VARIANT& child, const MenuAccess& access) {
    if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > static_cast<long>(access.items.size()))
        return std::nullopt;
    return static_cast<int>(child.lVal);
}

const AccessObject& ObjectOf(const MenuAccess& access, int child) {
    return child == CHILDID_SELF ? access.menu : access.items[static_cast<std::size_t>(child - 1)];
}

// A text, or S_FALSE with none when it is empty, as readers expect of a missing property.
HRESULT TextResult(const std::string& text, BSTR* out) {
    if (text.empty())
        return S_FALSE;
    *out = ::SysAllocString(Win::Widen(text).c_str());
    return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT LongResult(long value, VARIANT* out) {
    out->vt = VT_I4;
    out->lVal = value;
    return S_OK;
}

HRESULT NoChild(VARIANT* out) {
    out->vt = VT_EMPTY;
    return S_FALSE;
}

long StateBits(const AccessStates& states, AccessRole role) {
    long bits = 0;
    if (states.focusable)
        bits |= STATE_SYSTEM_FOCUSABLE | (role == AccessRole::MenuItem ? STATE_SYSTEM_SELECTABLE : 0);
    if (states.selected)
        bits |= STATE_SYSTEM_SELECTED | STATE_SYSTEM_HOTTRACKED;
    if (states.focused)
        bits |= STATE_SYSTEM_FOCUSED;
    if (states.hasPopup)
        bits |= STATE_SYSTEM_HASPOPUP;
    if (states.unavailable)
        bits |= STATE_SYSTEM_UNAVAILABLE;
    if (states.offscreen)
        bits |= STATE_SYSTEM_OFFSCREEN;
    return bits;
}

std::optional<AccessDirection> DirectionOf(long direction) {
    switch (direction) {
    case NAVDIR_FIRSTCHILD:
        return AccessDirection::First;
    case NAVDIR_LASTCHILD:
        return AccessDirection::Last;
    case NAVDIR_NEXT:
        return AccessDirection::Next;
    case NAVDIR_PREVIOUS:
        return AccessDirection::Previous;
    case NAVDIR_UP:
        return AccessDirection::Up;
    case NAVDIR_DOWN:
        return AccessDirection::Down;
    case NAVDIR_LEFT:
        return AccessDirection::Left;
    case NAVDIR_RIGHT:
        return AccessDirection::Right;
    default:
        return std::nullopt;
    }
}

// Where the window's top left corner stands on the screen: the records' places are
// window coordinates.
POINT WindowOrigin(HWND hwnd) {
    RECT rect{};
    ::GetWindowRect(hwnd, &rect);
    return {rect.left, rect.top};
}

} // namespace

void MenuAccessible::Disconnect() {
    source_ = nullptr;
    ::CoDisconnectObject(static_cast<IAccessible*>(this), 0);
}

HRESULT MenuAccessible::QueryInterface(REFIID id, void** object) {
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (!::IsEqualIID(id, IID_IUnknown) && !::IsEqualIID(id, IID_IDispatch) && !::IsEqualIID(id, IID_IAccessible))
        return E_NOINTERFACE;
    *object = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
}

ULONG MenuAccessible::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT MenuAccessible::GetTypeInfoCount(UINT* count) {
    if (!count)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

// The window's own standard object, which leads on to the desktop.
HRESULT MenuAccessible::get_accParent(IDispatch** parent) {
    if (!parent)
        return E_POINTER;
    *parent = nullptr;
    if (!source_)
        return RPC_E_DISCONNECTED;
    return ::AccessibleObjectFromWindow(source_->AccessWindow(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                        reinterpret_cast<void**>(parent));
}

HRESULT MenuAccessible::get_accChildCount(long* count) {
    if (!count)
        return E_POINTER;
    if (!source_)
        return RPC_E_DISCONNECTED;
    *count = static_cast<long>(source_->DescribeForAccess().items.size());
    return S_OK;
}

// Items are simple elements, answered by this object with their child ids.
HRESULT MenuAccessible::get_accChild(VARIANT child, IDispatch** object) {
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (!source_)
        return RPC_E_DISCONNECTED;
    return ChildOf(child, source_->DescribeForAccess()) ? S_FALSE : E_INVALIDARG;
}

// Answers a question about one child of the menu: fails when the window is gone or the
// VARIANT names no child of it.
template <class Answer>
HRESULT MenuAccessible::About(const VARIANT& child, Answer answer) {
    if (!source_)
        return RPC_E_DISCONNECTED;
    const MenuAccess access = source_->DescribeForAccess();
    const std::optional<int> id = ChildOf(child, access);
    return id ? answer(access, *id, ObjectOf(access, *id)) : E_INVALIDARG;
}

// A text of a child, or S_FALSE with none when the child has none.
HRESULT MenuAccessible::TextOf(const VARIANT& child, BSTR* out, std::string AccessObject::*text) {
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return About(child,
                 [&](const MenuAccess&, int, const AccessObject& object) { return TextResult(object.*text, out); });
}

// A text no object of a menu has.
HRESULT MenuAccessible::NoText(BSTR* out) const {
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return source_ ? DISP_E_MEMBERNOTFOUND : RPC_E_DISCONNECTED;
}

HRESULT MenuAccessible::get_accName(VARIANT child, BSTR* name) {
    return TextOf(child, name, &AccessObject::name);
}

HRESULT MenuAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
    return TextOf(child, shortcut, &AccessObject::shortcut);
}

HRESULT MenuAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
    return TextOf(child, action, &AccessObject::defaultAction);
}

HRESULT MenuAccessible::get_accValue(VARIANT, BSTR* value) {
    return NoText(value);
}

HRESULT MenuAccessible::get_accDescription(VARIANT, BSTR* description) {
    return NoText(description);
}

HRESULT MenuAccessible::get_accHelp(VARIANT, BSTR* help) {
    return NoText(help);
}

HRESULT MenuAccessible::get_accHelpTopic(BSTR* file, VARIANT, long* topic) {
    if (!file || !topic)
        return E_POINTER;
    *file = nullptr;
    *topic = 0;
    return source_ ? DISP_E_MEMBERNOTFOUND : RPC_E_DISCONNECTED;
}

HRESULT MenuAccessible::get_accRole(VARIANT child, VARIANT* role) {
    if (!role)
        return E_POINTER;
    role->vt = VT_EMPTY;
    return About(child, [&](const MenuAccess&, int, const AccessObject& object) {
        return LongResult(object.role == AccessRole::Menu ? ROLE_SYSTEM_MENUPOPUP : ROLE_SYSTEM_MENUITEM, role);
    });
}

HRESULT MenuAccessible::get_accState(VARIANT child, VARIANT* state) {
    if (!state)
        return E_POINTER;
    state->vt = VT_EMPTY;
    return About(child, [&](const MenuAccess&, int, const AccessObject& object) {
        return LongResult(StateBits(object.states, object.role), state);
    });
}

HRESULT MenuAccessible::get_accFocus(VARIANT* child) {
    if (!child)
        return E_POINTER;
    child->vt = VT_EMPTY;
    if (!source_)
        return RPC_E_DISCONNECTED;
    const std::optional<int> focus = source_->DescribeForAccess().focus;
    return focus ? LongResult(*focus, child) : NoChild(child);
}

HRESULT MenuAccessible::get_accSelection(VARIANT* children) {
    if (!children)
        return E_POINTER;
    children->vt = VT_EMPTY;
    if (!source_)
        return RPC_E_DISCONNECTED;
    const MenuAccess access = source_->DescribeForAccess();
    for (std::size_t index = 0; index < access.items.size(); ++index)
        if (access.items[index].states.selected)
            return LongResult(static_cast<int>(index) + 1, children);
    return NoChild(children);
}

// Taking the focus or the selection both move the selection bar: a menu has one of each.
HRESULT MenuAccessible::accSelect(long flags, VARIANT child) {
    return About(child, [&](const MenuAccess&, int id, const AccessObject& object) -> HRESULT {
        constexpr long kMoves = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
        if (id == CHILDID_SELF || (flags & ~kMoves) != 0 || (flags & kMoves) == 0)
            return E_INVALIDARG;
        if (!object.states.focusable)
            return S_FALSE;
        source_->ActForAccess(id, false);
        return S_OK;
    });
}

HRESULT MenuAccessible::accLocation(long* left, long* top, long* width, long* height, VARIANT child) {
    if (!left || !top || !width || !height)
        return E_POINTER;
    *left = *top = *width = *height = 0;
    return About(child, [&](const MenuAccess&, int, const AccessObject& object) -> HRESULT {
        if (object.place.Empty())
            return S_FALSE;
        const POINT origin = WindowOrigin(source_->AccessWindow());
        *left = origin.x + object.place.left;
        *top = origin.y + object.place.top;
        *width = object.place.Width();
        *height = object.place.Height();
        return S_OK;
    });
}

HRESULT MenuAccessible::accNavigate(long direction, VARIANT start, VARIANT* end) {
    if (!end)
        return E_POINTER;
    end->vt = VT_EMPTY;
    const std::optional<AccessDirection> way = DirectionOf(direction);
    if (!way)
        return E_INVALIDARG;
    return About(start, [&](const MenuAccess& access, int id, const AccessObject&) {
        const int reached = Navigate(static_cast<int>(access.items.size()), access.horizontal, id, *way);
        return reached != 0 ? LongResult(reached, end) : NoChild(end);
    });
}

HRESULT MenuAccessible::accHitTest(long x, long y, VARIANT* child) {
    if (!child)
        return E_POINTER;
    child->vt = VT_EMPTY;
    if (!source_)
        return RPC_E_DISCONNECTED;
    const MenuAccess access = source_->DescribeForAccess();
    const POINT origin = WindowOrigin(source_->AccessWindow());
    const Point point{static_cast<int>(x - origin.x), static_cast<int>(y - origin.y)};
    if (!access.menu.place.Contains(point))
        return NoChild(child);
    return LongResult(ChildAt(access, point), child);
}

HRESULT MenuAccessible::accDoDefaultAction(VARIANT child) {
    return About(child, [&](const MenuAccess&, int id, const AccessObject& object) -> HRESULT {
        if (object.defaultAction.empty())
            return DISP_E_MEMBERNOTFOUND;
        source_->ActForAccess(id, true);
        return S_OK;
    });
}
