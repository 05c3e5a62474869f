// Form2, the menu window: one object, and one borderless popup window, per open menu.
// It is created hidden, takes its copy of the settings (SetLocalVariables), builds its
// display list, measures, places and paints itself (PaintMenu) and is then shown. All
// painting goes into an off-screen picture that WM_PAINT copies to the screen.
#pragma once

#include "core/settings.h"
#include "menus/menu_records.h"
#include "menuwindow/interaction/cascade.h"
#include "menuwindow/interaction/choosing.h"
#include "menuwindow/interaction/menu_interaction.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/layout/title_buttons.h"
#include "menuwindow/look/menu_look.h"
#include "menuwindow/look/sounds.h"
#include "menuwindow/paint/animation.h"
#include "menuwindow/paint/repaint.h"
#include "menuwindow/win/back_buffer.h"
#include "menuwindow/win/item_icons.h"
#include "menuwindow/win/menu_accessible.h"
#include "menuwindow/win/menu_fonts.h"
#include "menuwindow/win/open_menus.h"
#include "menuwindow/win/theme_pictures.h"
#include "win/com_ptr.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class Form2 : private MenuAccessSource {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2Menu";

    // The window of the cascade record with identifier id; settings and menus are the
    // program's, read when the window takes its settings and builds its list. Theme
    // pictures and sounds given without a drive are found in the program folder.
    Form2(const SettingsRec& settings, const MenuTable& menus, std::string programFolder, OpenMenus& openMenus,
          int id);
    ~Form2();
    Form2(const Form2&) = delete;
    Form2& operator=(const Form2&) = delete;

    // Makes the window, before Create, a child of another window instead of a popup of
    // its own: the preferences show their sample menu so. Its place stays in screen pixels.
    void HostIn(HWND host) { host_ = host; }
    // Creates the window hidden, takes the settings, paints and places it. False when
    // the window could not be made.
    bool Create();
    // Shows the window, brings it to the front and plays its opening animation. The
    // queue is served during the animation, so the object may be gone when this returns.
    void Show();

    // Brings the window to the front: a hotspot fired again for an AlwaysOpen menu.
    void BringForward();

    void SetLocalVariables();
    // Builds the display list, measures, places and paints the whole window.
    void PaintMenu();

    // Paints an item's button, selected (with the selection bar) or normal.
    void DrawButton(int item, bool selected);
    void DrawButton(int item, MenuWindow::ButtonState state);
    // Repaints an item's button in the state the selection gives it: always, or only when
    // that state differs from the one it was last painted in.
    void ForceRedrawButton(int item);
    void RedrawButton(int item);
    void DrawScrollButton();
    // Scrolls the menu, when the item lies outside the visible run, so that it shows,
    // and selects it.
    void MakeButtonVisible(int item);
    // Lets the items' icons go.
    void DestroyIconHandles();

    // Moves the selection (and press); only the buttons whose state changed are repainted.
    void SetSelection(const MenuWindow::SelectionState& selection);
    // The inactive look of a parent whose sub-menu is open; repaints the window.
    void SetInactive(bool inactive);
    // Rolled up, only the title bar shows.
    void SetRolledUp(bool rolledUp);

    // Opens the sub-menu of an item beside it, in place of any other this window has open.
    void OpenNewMenu(int item);
    // Closes the sub-menu this window has open, and every menu below it.
    void CloseSubMenu();
    // Called by this window's sub-menu when it goes (closed, or torn off).
    void NotifySubMenuClosed();
    // Called by this window's sub-menu when the keyboard closes it: the keyboard comes
    // back here with the selection where it was.
    void NotifyDiscardMouseMove();

    // A key going down or up in this window, with the shift keys held as it was typed and
    // its message time: what a key message does, also for keys typed before the window
    // could take them. The object may be gone afterwards (Escape closes it).
    void TypeKey(WPARAM key, bool up, MenuWindow::Modifiers modifiers, std::uint32_t time);

    HWND hwnd() const { return window_.get(); }
    int id() const { return id_; }
    const MenuWindow::MenuScene& scene() const { return scene_; }
    const MenuWindow::SelectionState& selection() const { return selection_; }
    const MenuWindow::InteractionState& interaction() const { return interaction_.state(); }
    // How many buttons were painted one by one since the window was made (a full paint
    // does not count); it shows that a change of selection repaints only what changed.
    int ButtonsDrawn() const { return buttonsDrawn_; }
    int IconsHeld() const { return icons_.Held(); }
    // How many frames the opening animation showed; 0 when it was off.
    int AnimationFramesShown() const { return animationFramesShown_; }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<Form2>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    void Picture2_Paint();
    void Form_MouseDown(MenuWindow::MouseButton button, WPARAM keys, MenuWindow::Point point);
    void Form_MouseMove(MenuWindow::Point point);
    void Form_MouseUp(MenuWindow::MouseButton button, WPARAM keys, MenuWindow::Point point);
    // The shift keys held now; a mouse message carries Shift and Ctrl as they were.
    static MenuWindow::Modifiers HeldModifiers();
    static MenuWindow::Modifiers HeldModifiers(WPARAM mouseKeys);
    void Form_KeyDown(WPARAM key);
    void Form_KeyUp(WPARAM key);
    void Form_Timer(UINT_PTR timer);
    void picbutton_MouseDown(MenuWindow::TitleButton button);
    void picbutton_MouseUp(MenuWindow::Point point);
    void DrawTitleButton(MenuWindow::TitleButton button, bool pressed);
    void DragByTitle();
    void Drop(MenuWindow::Point from, MenuWindow::Point dropped);
    void TearOffFromParent();
    // Carries out what the interaction answered; the action comes last, since it may
    // close this window.
    void Apply(const MenuWindow::Effects& effects);
    void Choose(int item, bool ctrlHeld);
    void tmrSetForeground_Timer();
    static UINT_PTR TimerId(MenuWindow::MenuTimer timer);
    void CloseByKeyboard();
    void CloseCascade();
    void PlayEventSound(MenuWindow::SoundEvent event);
    void Form_PrintClient(HDC dc);
    // Posted to the window with a screen reader's request: the item, and whether to choose it.
    static constexpr UINT kAccessActionMessage = WM_APP + 2;
    // A screen reader asks for the window's accessible object.
    LRESULT Form_GetObject(WPARAM flags, LPARAM objectId);
    MenuWindow::MenuAccess DescribeForAccess() const override;
    HWND AccessWindow() const override { return window_.get(); }
    void ActForAccess(int item, bool choose) override;
    void Form_AccessAction(int item, bool choose);
    void RaiseAccessEvent(DWORD event, LONG child);
    void Form_Unload();
    void PlayOpenMenuSound();
    void Animate(const MenuWindow::AnimationPlan& plan);
    std::optional<MenuWindow::Point> CursorInWindow() const;
    Form2* Parent() const;
    MenuWindow::Edge NearEdgeInWindow(const MenuWindow::CascadeRec& subMenu) const;
    // Where the window stands on the screen now; a hosted window moves with its host.
    MenuWindow::Rect ScreenBounds() const;

    MenuWindow::CascadeRec& Record();
    MenuWindow::DisplayList BuildItemList();
    // Lays out, places and paints the window around a display list, in fonts made anew.
    void Rebuild(MenuWindow::DisplayList list);
    MenuWindow::MenuScene LayOut(MenuWindow::DisplayList list, int dpi);
    // Places and paints the window around the scene: where the cascade record says, or
    // at a placement given.
    void Present();
    void Present(const MenuWindow::Placement& placement);
    void Form_DpiChanged(int dpi);
    void tmrUpdateTaskList_Timer();
    void Place();
    void PaintSurface();
    void ApplyOutline();
    void Render(const MenuWindow::DrawList& list);
    void Invalidate(const MenuWindow::Rect& area);

    const SettingsRec& settings_;
    const MenuTable& menus_;
    std::string programFolder_;
    OpenMenus& openMenus_;
    int id_;
    HWND host_ = nullptr;
    MenuWindow::MenuLook look_;
    MenuWindow::MenuScene scene_;
    MenuWindow::MenuFonts fonts_;
    MenuWindow::ItemIcons icons_;
    MenuWindow::ThemePictures pictures_;
    MenuWindow::BackBuffer picture_;
    MenuWindow::SelectionState selection_;
    std::vector<MenuWindow::ButtonState> drawn_; // the state each item was last painted in, by item
    MenuWindow::MenuInteraction interaction_;
    std::optional<MenuWindow::TitleButton> pressedTitleButton_;
    bool inactive_ = false;
    bool rolledUp_ = false;
    int buttonsDrawn_ = 0;
    int animationFramesShown_ = 0;
    Win::ComPtr<MenuAccessible> accessible_; // made when a reader first asks
    bool unloading_ = false; // from then on a reader gets the system's plain object, never ours
    // Expires with the object: code that serves the queue checks it before touching members.
    std::shared_ptr<bool> lifetime_ = std::make_shared<bool>(true);
    // Declared last, so it goes first: the window's last messages still find the whole object.
    Win::UniqueWindow window_;
};
