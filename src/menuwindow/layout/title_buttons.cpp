#include "menuwindow/layout/title_buttons.h"

#include <algorithm>
#include <array>

namespace MenuWindow {

namespace {

struct ButtonSetting {
    TitleButton button;
    std::int16_t status;
    std::int16_t position;
};

std::array<ButtonSetting, 4> SettingsOf(const MenuLook& look) {
    return {{{TitleButton::Close, look.CloseStatus, look.ClosePosition},
             {TitleButton::Rotate, look.RotateStatus, look.RotatePosition},
             {TitleButton::RollUp, look.RollUpStatus, look.RollUpPosition},
             {TitleButton::OnTop, look.AlwaysOnTopStatus, look.AlwaysOnTopPosition}}};
}

// Distance from the end: 0 and 1 and so on from the far end, -1, -2 and so on from the near one.
int DistanceFromEnd(std::int16_t position) {
    return position >= 0 ? position : -position;
}

} // namespace

std::vector<PlacedTitleButton> PlaceTitleButtons(const MenuLook& look, bool inactiveWindow, Rect bar, bool verticalBar,
                                                 int size, int gap) {
    int thickness = verticalBar ? bar.Width() : bar.Height();
    size = std::max(0, std::min(size, thickness));
    int margin = (thickness - size) / 2;
    int wanted = inactiveWindow ? kStatusInactive : kStatusActive;

    std::vector<ButtonSetting> farEnd;
    std::vector<ButtonSetting> nearEnd;
    for (const ButtonSetting& setting : SettingsOf(look)) {
        if ((setting.status & wanted) == 0)
            continue;
        (setting.position >= 0 ? farEnd : nearEnd).push_back(setting);
    }
    auto byDistance = [](const ButtonSetting& a, const ButtonSetting& b) {
        return DistanceFromEnd(a.position) < DistanceFromEnd(b.position);
    };
    std::stable_sort(farEnd.begin(), farEnd.end(), byDistance);
    std::stable_sort(nearEnd.begin(), nearEnd.end(), byDistance);

    std::vector<PlacedTitleButton> placed;
    auto place = [&](const std::vector<ButtonSetting>& group, bool atFarEnd) {
        for (std::size_t k = 0; k < group.size(); ++k) {
            int fromEnd = margin + static_cast<int>(k) * (size + gap);
            Rect rect;
            if (verticalBar) {
                int top = atFarEnd ? bar.top + fromEnd : bar.bottom - fromEnd - size;
                rect = {bar.left + margin, top, bar.left + margin + size, top + size};
            } else {
                int left = atFarEnd ? bar.right - fromEnd - size : bar.left + fromEnd;
                rect = {left, bar.top + margin, left + size, bar.top + margin + size};
            }
            placed.push_back({group[k].button, rect, atFarEnd});
        }
    };
    place(farEnd, true);
    place(nearEnd, false);
    return placed;
}

Rect TitleTextRect(Rect bar, bool verticalBar, const std::vector<PlacedTitleButton>& buttons, int padding) {
    Rect text = bar;
    for (const PlacedTitleButton& placed : buttons) {
        if (verticalBar) {
            if (placed.atFarEnd)
                text.top = std::max(text.top, placed.rect.bottom);
            else
                text.bottom = std::min(text.bottom, placed.rect.top);
        } else {
            if (placed.atFarEnd)
                text.right = std::min(text.right, placed.rect.left);
            else
                text.left = std::max(text.left, placed.rect.right);
        }
    }
    if (verticalBar) {
        text.top += padding;
        text.bottom -= padding;
        if (text.bottom < text.top)
            text.bottom = text.top;
    } else {
        text.left += padding;
        text.right -= padding;
        if (text.right < text.left)
            text.right = text.left;
    }
    return text;
}

} // namespace MenuWindow
