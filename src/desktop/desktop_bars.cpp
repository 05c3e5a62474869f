#include "desktop/desktop_bars.h"

#include "menuwindow/look/dpi_scale.h"
#include "menuwindow/look/gradient.h"
#include "menuwindow/look/pictures.h"

#include <algorithm>

namespace DesktopBars {

using namespace MenuWindow;

Corner CornerOf(std::int16_t position, Corner fallback) {
    return position >= 0 && position <= 3 ? static_cast<Corner>(position) : fallback;
}

Rect PlaceInCorner(const Rect& area, Size size, Corner corner, int xOffset, int yOffset) {
    bool right = corner == Corner::TopRight || corner == Corner::BottomRight;
    bool bottom = corner == Corner::BottomLeft || corner == Corner::BottomRight;
    int left = right ? area.right - size.width - xOffset : area.left + xOffset;
    int top = bottom ? area.bottom - size.height - yOffset : area.top + yOffset;
    return RectAt({left, top}, size);
}

Rect PlacementArea(const Rect& screen, const Rect& workArea, bool taskbarVisible) {
    return taskbarVisible && !workArea.Empty() ? workArea : screen;
}

int FrameWidth(const SettingsRec& settings, int dpi) {
    return std::clamp<int>(Dpi::Scale(settings.TaskbarFrame, dpi), 0, 8);
}

DrawList BackgroundOps(const SettingsRec& settings, std::span<const std::string> pictures, Size window, int dpi) {
    DrawList ops;
    Rect all{0, 0, window.width, window.height};
    if (std::optional<std::string> picture = FindBackgroundPicture(pictures, "Tasks")) {
        ops.push_back(PictureOp{all, all, *picture, settings.TaskbarTileBitmap ? PictureFit::Tile : PictureFit::Stretch});
    } else if (settings.TaskbarBackgroundType == 1) {
        GradientSpec spec{settings.TaskbarColor1, settings.TaskbarColor2, settings.TaskbarGradientType,
                          settings.TaskbarWrapGradient};
        for (const ColourBand& band : GradientBands(window, spec))
            ops.push_back(FillOp{band.rect, band.colour});
    } else {
        ops.push_back(FillOp{all, settings.TaskbarColor1});
    }
    int frame = FrameWidth(settings, dpi);
    if (frame > 0 && window.width > 2 * frame && window.height > 2 * frame) {
        ops.push_back(FillOp{{0, 0, window.width, frame}, settings.TaskbarFrameColor1});
        ops.push_back(FillOp{{0, 0, frame, window.height}, settings.TaskbarFrameColor1});
        ops.push_back(FillOp{{0, window.height - frame, window.width, window.height}, settings.TaskbarFrameColor2});
        ops.push_back(FillOp{{window.width - frame, 0, window.width, window.height}, settings.TaskbarFrameColor2});
    }
    return ops;
}

TaskListShape ShapeOf(const SettingsRec& settings, int textHeight, int dpi) {
    TaskListShape shape;
    shape.buttons = settings.TaskbarStyle == 1;
    shape.vertical = settings.TaskbarOrientation == 0;
    int icon = settings.TaskbarIconSize == 0 ? 16 : settings.TaskbarIconSize >= 2 ? 48 : 32;
    shape.iconSize = Dpi::Scale(icon, dpi);
    shape.frame = FrameWidth(settings, dpi);
    shape.padding = Dpi::Scale(4, dpi);
    shape.buttonWidth = Dpi::Scale(160, dpi);
    shape.textHeight = textHeight;
    return shape;
}

namespace {

Size SlotSize(const TaskListShape& shape) {
    int side = shape.iconSize + 2 * shape.padding;
    if (!shape.buttons)
        return {side, side};
    return {shape.buttonWidth, std::max(side, shape.textHeight + 2 * shape.padding)};
}

} // namespace

TaskListLayout LayOutTaskList(const TaskListShape& shape, int count, Size room) {
    TaskListLayout layout;
    Size slot = SlotSize(shape);
    int wanted = std::max(count, 1);
    int along = shape.vertical ? room.height : room.width;
    int slotLength = shape.vertical ? slot.height : slot.width;
    int inside = std::max(0, along - 2 * shape.frame);
    if (shape.buttons && !shape.vertical && wanted * slotLength > inside)
        slotLength = std::max(shape.iconSize + 2 * shape.padding, inside / wanted);
    int shown = std::clamp(slotLength > 0 ? inside / slotLength : 0, 1, wanted);
    int across = shape.vertical ? slot.width : slot.height;
    int length = shown * slotLength + 2 * shape.frame;
    layout.window = shape.vertical ? Size{across + 2 * shape.frame, length} : Size{length, across + 2 * shape.frame};
    for (int i = 0; i < std::min(shown, count); ++i) {
        int start = shape.frame + i * slotLength;
        layout.slots.push_back(shape.vertical
                                   ? Rect{shape.frame, start, shape.frame + across, start + slotLength}
                                   : Rect{start, shape.frame, start + slotLength, shape.frame + across});
    }
    return layout;
}

std::optional<int> SlotAt(const TaskListLayout& layout, Point point) {
    for (std::size_t i = 0; i < layout.slots.size(); ++i)
        if (layout.slots[i].Contains(point))
            return static_cast<int>(i);
    return std::nullopt;
}

DrawList TaskListOps(const SettingsRec& settings, const TaskListShape& shape, const TaskListLayout& layout,
                     const std::vector<TaskListEntry>& entries) {
    DrawList ops;
    for (std::size_t i = 0; i < layout.slots.size() && i < entries.size(); ++i) {
        const Rect& slot = layout.slots[i];
        const TaskListEntry& entry = entries[i];
        int iconTop = slot.top + (slot.Height() - shape.iconSize) / 2;
        if (shape.buttons) {
            // A raised button, or a pressed one for the window the user works in.
            Colour light = entry.foreground ? settings.TaskbarFrameColor2 : settings.TaskbarFrameColor1;
            Colour dark = entry.foreground ? settings.TaskbarFrameColor1 : settings.TaskbarFrameColor2;
            Rect face{slot.left + 1, slot.top + 1, slot.right - 1, slot.bottom - 1};
            ops.push_back(FillOp{{face.left, face.top, face.right, face.top + 1}, light});
            ops.push_back(FillOp{{face.left, face.top, face.left + 1, face.bottom}, light});
            ops.push_back(FillOp{{face.left, face.bottom - 1, face.right, face.bottom}, dark});
            ops.push_back(FillOp{{face.right - 1, face.top, face.right, face.bottom}, dark});
            int iconLeft = slot.left + shape.padding;
            ops.push_back(IconOp{RectAt({iconLeft, iconTop}, {shape.iconSize, shape.iconSize}), static_cast<int>(i) + 1});
            int textLeft = iconLeft + shape.iconSize + shape.padding;
            Rect clip{textLeft, face.top + 1, face.right - shape.padding, face.bottom - 1};
            if (!clip.Empty())
                ops.push_back(TextOp{{textLeft, slot.top + (slot.Height() - shape.textHeight) / 2}, entry.title,
                                     FontRole::Button, settings.ButtonFontColor, clip});
        } else {
            int iconLeft = slot.left + (slot.Width() - shape.iconSize) / 2;
            ops.push_back(IconOp{RectAt({iconLeft, iconTop}, {shape.iconSize, shape.iconSize}), static_cast<int>(i) + 1});
        }
    }
    return ops;
}

SystrayLayout LayOutSystray(const SettingsRec& settings, Size notifyArea, int timeWidth, int dateWidth,
                            int textHeight, int dpi) {
    int frame = FrameWidth(settings, dpi);
    int padding = Dpi::Scale(6, dpi);
    Size clock{std::max(timeWidth, dateWidth) + 2 * padding, 2 * textHeight + 2 * padding};
    SystrayLayout layout;
    if (settings.SystrayStyle == kSystrayColumn) {
        int width = std::max(clock.width, notifyArea.width);
        layout.notifyArea = RectAt({frame + (width - notifyArea.width) / 2, frame}, notifyArea);
        layout.clock = RectAt({frame + (width - clock.width) / 2, frame + notifyArea.height}, clock);
        layout.window = {width + 2 * frame, notifyArea.height + clock.height + 2 * frame};
        return layout;
    }
    int height = std::max(clock.height, notifyArea.height);
    layout.notifyArea = RectAt({frame, frame + (height - notifyArea.height) / 2}, notifyArea);
    layout.clock = RectAt({frame + notifyArea.width, frame + (height - clock.height) / 2}, clock);
    layout.window = {notifyArea.width + clock.width + 2 * frame, height + 2 * frame};
    return layout;
}

DrawList SystrayOps(const SettingsRec& settings, std::span<const std::string> pictures, const SystrayLayout& layout,
                    const std::string& time, const std::string& date, int textHeight, int dpi) {
    DrawList ops = BackgroundOps(settings, pictures, layout.window, dpi);
    int padding = Dpi::Scale(6, dpi);
    const Rect& clock = layout.clock;
    ops.push_back(TextOp{{clock.left + padding, clock.top + padding}, time, FontRole::Button, settings.ButtonFontColor,
                         clock});
    ops.push_back(TextOp{{clock.left + padding, clock.top + padding + textHeight}, date, FontRole::Button,
                         settings.ButtonFontColor, clock});
    return ops;
}

SystrayPlaces PlaceSystray(const SettingsRec& settings, const Rect& area, Size systray, bool withButton, int dpi) {
    Corner corner = CornerOf(settings.SystrayPos, Corner::BottomRight);
    int side = Dpi::Scale(kButtonSide, dpi);
    SystrayPlaces places;
    if (!withButton) {
        places.systray = PlaceInCorner(area, systray, corner, settings.SystrayXofset, settings.SystrayYofset);
        return places;
    }
    places.button = PlaceInCorner(area, {side, side}, corner, settings.SystrayXofset, settings.SystrayYofset);
    places.systray = PlaceInCorner(area, systray, corner, settings.SystrayXofset + side, settings.SystrayYofset);
    return places;
}

} // namespace DesktopBars
