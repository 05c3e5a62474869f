#include "menuwindow/layout/menu_layout.h"

#include <algorithm>

namespace MenuWindow {

LayoutOptions LayoutOptionsOf(const MenuLook& look, bool horizontal, bool inactiveWindow, int dpi) {
    LayoutOptions options;
    options.metrics = MetricsOf(look, dpi);
    options.shape = ShapeOf(look, horizontal, inactiveWindow);
    options.horizontal = horizontal;
    options.lockWidth = look.HorzLockWidth;
    options.maxItems = look.MenuMaxNoItems;
    options.twinScroll = look.TwinScrollButtons;
    return options;
}

int FrameThickness(const LayoutOptions& options) {
    return options.shape.frameLines * options.metrics.frameLine;
}

int ClampedButtonWidth(int needed, const MenuMetrics& metrics) {
    int width = std::max(needed, metrics.minWidth);
    if (metrics.maxWidth > 0)
        width = std::min(width, metrics.maxWidth);
    return width;
}

namespace {

int TitleThickness(const LayoutOptions& options) {
    return options.shape.title == TitlePlace::None ? 0 : options.metrics.titleThickness;
}

// The frame and the title bar's share of the room along the buttons.
int ChromeAlongButtons(const LayoutOptions& options) {
    int frames = 2 * FrameThickness(options);
    TitlePlace title = options.shape.title;
    bool titleAlong =
        options.horizontal ? title == TitlePlace::Left : title == TitlePlace::Top || title == TitlePlace::Bottom;
    return frames + (titleAlong ? TitleThickness(options) : 0);
}

SurfaceLayout VerticalSurface(int count, int width, const LayoutOptions& options, int room, int first) {
    SurfaceLayout surface;
    surface.buttonHeight = options.metrics.buttonHeight;
    surface.buttonWidth = width;
    int fitting = std::max(0, room) / surface.buttonHeight;
    surface.view = PlanScroll(count, fitting, options.maxItems, options.twinScroll, first);
    return surface;
}

struct HorizontalRow {
    SurfaceLayout surface;
    bool ownColumns = false;
};

HorizontalRow HorizontalSurface(const std::vector<int>& ownWidths, int lockedWidth, const LayoutOptions& options,
                                int room, int first) {
    HorizontalRow row;
    row.surface.horizontal = true;
    row.surface.buttonHeight = options.metrics.buttonHeight;
    int count = static_cast<int>(ownWidths.size());
    if (!options.lockWidth) {
        int total = 1;
        for (int width : ownWidths)
            total += width;
        if (total <= room && count <= options.maxItems) {
            row.surface.widths = ownWidths;
            row.surface.view = PlanScroll(count, count, options.maxItems, options.twinScroll, 0);
            row.ownColumns = true;
            return row;
        }
    }
    int fitting = lockedWidth > 0 ? std::max(0, room - 1) / lockedWidth : count;
    row.surface.view = PlanScroll(count, fitting, options.maxItems, options.twinScroll, first);
    row.surface.widths.assign(static_cast<std::size_t>(row.surface.view.slots), lockedWidth);
    return row;
}

} // namespace

MenuLayout LayOutMenu(const std::vector<ItemMeasure>& items, const LayoutOptions& options, int available, int first) {
    const MenuMetrics& metrics = options.metrics;
    MenuLayout layout;
    layout.columns = MenuColumns(items, metrics);
    int widestNeed = 0;
    for (const ItemMeasure& item : items)
        widestNeed = std::max(widestNeed, NeededWidth(item, layout.columns, metrics));
    int lockedWidth = ClampedButtonWidth(widestNeed, metrics);
    int room = available - ChromeAlongButtons(options);

    if (options.horizontal) {
        std::vector<int> ownWidths;
        for (const ItemMeasure& item : items)
            ownWidths.push_back(ClampedButtonWidth(NeededWidth(item, ItemColumns(item, metrics), metrics), metrics));
        HorizontalRow row = HorizontalSurface(ownWidths, lockedWidth, options, room, first);
        layout.buttons = row.surface;
        layout.ownColumns = row.ownColumns;
    } else {
        bool titleAcross = options.shape.title == TitlePlace::Top || options.shape.title == TitlePlace::Bottom;
        int width = titleAcross ? ClampedButtonWidth(std::max(widestNeed, options.titleWidth), metrics) : lockedWidth;
        layout.buttons = VerticalSurface(static_cast<int>(items.size()), width, options, room, first);
    }

    int frame = FrameThickness(options);
    int thickness = TitleThickness(options);
    Size surface = SurfaceSize(layout.buttons);
    layout.titlePlace = options.shape.title;
    switch (layout.titlePlace) {
    case TitlePlace::Top:
        layout.title = {frame, frame, frame + surface.width, frame + thickness};
        layout.surface = RectAt({frame, frame + thickness}, surface);
        layout.window = {2 * frame + surface.width, 2 * frame + thickness + surface.height};
        break;
    case TitlePlace::Bottom:
        layout.surface = RectAt({frame, frame}, surface);
        layout.title = {frame, frame + surface.height, frame + surface.width, frame + surface.height + thickness};
        layout.window = {2 * frame + surface.width, 2 * frame + thickness + surface.height};
        break;
    case TitlePlace::Left:
        layout.title = {frame, frame, frame + thickness, frame + surface.height};
        layout.surface = RectAt({frame + thickness, frame}, surface);
        layout.window = {2 * frame + thickness + surface.width, 2 * frame + surface.height};
        break;
    case TitlePlace::None:
        layout.surface = RectAt({frame, frame}, surface);
        layout.window = {2 * frame + surface.width, 2 * frame + surface.height};
        break;
    }

    if (options.shape.titleOverFrame && layout.titlePlace != TitlePlace::None) {
        layout.title.left = 0;
        if (layout.titlePlace != TitlePlace::Bottom)
            layout.title.top = 0;
        if (layout.titlePlace != TitlePlace::Left)
            layout.title.right = layout.window.width;
        if (layout.titlePlace != TitlePlace::Top)
            layout.title.bottom = layout.window.height;
    }
    return layout;
}

Columns ColumnsFor(const MenuLayout& layout, const ItemMeasure& item, const MenuMetrics& metrics) {
    return layout.ownColumns ? ItemColumns(item, metrics) : layout.columns;
}

} // namespace MenuWindow
