// The opening animation as the window plays it: every kind ends on the window's own
// image, unclipped and opaque, and a switched-off animation shows no frame at all.
#include "menu_window_fixture.h"

#include "menuwindow/paint/animation.h"
#include "menuwindow/layout/menu_scene.h"

#include <vector>

using namespace MenuWindowTests;
using MenuWindow::Point;

namespace {

// Pixels read from the window's device context, which is what is on the screen, not
// from the off-screen picture that WM_PRINTCLIENT would give.
std::vector<COLORREF> ShownPixels(HWND hwnd, const std::vector<Point>& points) {
    Win::WindowDc dc(hwnd);
    std::vector<COLORREF> pixels;
    for (Point p : points)
        pixels.push_back(::GetPixel(dc.get(), p.x, p.y));
    return pixels;
}

// The title bar's corners and the plain right end of every button.
std::vector<Point> ProbePoints(const Form2& form, int items) {
    MenuWindow::Rect title = form.scene().layout.title;
    std::vector<Point> points{{1, 1}, {title.right - 2, title.bottom - 2}};
    for (int item = 1; item <= items; ++item) {
        MenuWindow::Rect button = MenuWindow::ItemInWindow(form.scene(), item);
        points.push_back({button.right - 3, button.top + 1});
        points.push_back({button.right - 3, button.bottom - 2});
    }
    return points;
}

bool IsLayered(HWND hwnd) {
    return (::GetWindowLongPtrW(hwnd, GWL_EXSTYLE) & WS_EX_LAYERED) != 0;
}

int RegionKind(HWND hwnd) {
    Win::UniqueRegion probe(::CreateRectRgn(0, 0, 0, 0));
    return ::GetWindowRgn(hwnd, probe.get());
}

class RippleMenuTest : public MenuWindowTest, public ::testing::WithParamInterface<int> {};

} // namespace

TEST_P(RippleMenuTest, EndsOnTheUnanimatedImageWithoutClipOrSeeThroughStyle) {
    const std::vector<std::string> labels{"Editor", "Calculator", "Paint"};
    int menu = AddMenu("Programs", labels);
    Form2* still = Open(MenuRecord(menu, {60, 60}));
    ASSERT_TRUE(still);
    still->Show();
    ASSERT_EQ(still->AnimationFramesShown(), 0);

    settings.GenAnimationOn = -1;
    settings.AnimationType = static_cast<std::int16_t>(GetParam());
    settings.AnimationSpeed = MenuWindow::kFastestAnimationSpeed;
    Form2* animated = Open(MenuRecord(menu, {400, 60}));
    ASSERT_TRUE(animated);
    animated->Show();
    HWND hwnd = animated->hwnd();
    ASSERT_TRUE(::IsWindow(hwnd));

    std::size_t planned = MenuWindow::PlanMenuAnimation(MenuWindow::AnimationSettingsFrom(settings), false,
                                                        animated->scene().layout.window)
                              .frames.size();
    EXPECT_GE(planned, 2u);
    EXPECT_EQ(static_cast<std::size_t>(animated->AnimationFramesShown()), planned);
    EXPECT_EQ(RegionKind(hwnd), ERROR) << "the animation's clip is left on the window";
    EXPECT_FALSE(IsLayered(hwnd));

    int items = static_cast<int>(labels.size());
    std::vector<COLORREF> expected = ShownPixels(still->hwnd(), ProbePoints(*still, items));
    EXPECT_EQ(expected.front(), kTitleColour);
    EXPECT_EQ(expected.back(), kButtonColour);
    EXPECT_EQ(ShownPixels(hwnd, ProbePoints(*animated, items)), expected);
}

// 1 unroll, 2 slide, 3 ripple, 4 fade.
INSTANTIATE_TEST_SUITE_P(EveryKind, RippleMenuTest, ::testing::Values(1, 2, 3, 4));

namespace {

// The menu that a timer closes while its animation serves the queue.
OpenMenus* closingMenus = nullptr;
int closingId = 0;

void CALLBACK CloseMenuOnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    closingMenus->Close(closingMenus->records().IndexOf(closingId));
}

} // namespace

TEST_F(MenuWindowTest, AMenuClosedDuringItsAnimationStopsIt) {
    settings.GenAnimationOn = -1;
    settings.AnimationType = 1;
    settings.AnimationSpeed = MenuWindow::kSlowestAnimationSpeed;
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    HWND hwnd = form->hwnd();
    closingMenus = &openMenus;
    closingId = form->id();
    ASSERT_NE(::SetTimer(nullptr, 0, 1, CloseMenuOnTimer), 0u);
    form->Show(); // form is gone after this
    EXPECT_FALSE(::IsWindow(hwnd));
    EXPECT_EQ(openMenus.WindowOf(closingId), nullptr);
}
