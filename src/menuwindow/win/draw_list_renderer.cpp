#include "menuwindow/win/draw_list_renderer.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <array>
#include <variant>

namespace MenuWindow {

namespace {

COLORREF ToColorRef(Colour colour) {
    return static_cast<COLORREF>(colour) & 0x00FFFFFF;
}

RECT ToRect(const Rect& r) {
    return {r.left, r.top, r.right, r.bottom};
}

// The DC's own pen and brush take any colour without an object being made for it.
class Painter {
public:
    Painter(HDC dc, const MenuFonts& fonts, const IconLookup& icons, const PictureDrawer& pictures)
        : dc_(dc), fonts_(fonts), icons_(icons), pictures_(pictures), pen_(dc, ::GetStockObject(DC_PEN)),
          brush_(dc, ::GetStockObject(DC_BRUSH)) {
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextAlign(dc, TA_LEFT | TA_TOP | TA_NOUPDATECP);
    }

    void operator()(const FillOp& op) {
        RECT rect = ToRect(op.rect);
        ::SetDCBrushColor(dc_, ToColorRef(op.colour));
        ::FillRect(dc_, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
    }

    void operator()(const TriangleOp& op) {
        std::array<POINT, 3> points{};
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i] = {op.points[i].x, op.points[i].y};
        ::SetDCPenColor(dc_, ToColorRef(op.colour));
        ::SetDCBrushColor(dc_, ToColorRef(op.colour));
        ::Polygon(dc_, points.data(), static_cast<int>(points.size()));
    }

    void operator()(const EllipseOp& op) {
        ::SetDCPenColor(dc_, ToColorRef(op.outline));
        if (op.fill) {
            ::SetDCBrushColor(dc_, ToColorRef(*op.fill));
            ::Ellipse(dc_, op.rect.left, op.rect.top, op.rect.right, op.rect.bottom);
            return;
        }
        Win::SelectGuard hollow(dc_, ::GetStockObject(NULL_BRUSH));
        ::Ellipse(dc_, op.rect.left, op.rect.top, op.rect.right, op.rect.bottom);
    }

    // Each piece in its own font, the next one where the last ended: along the line, or
    // upwards for the turned title.
    void operator()(const TextOp& op) {
        ::SetTextColor(dc_, ToColorRef(op.colour));
        RECT clip = ToRect(op.clip);
        POINT at{op.origin.x, op.origin.y};
        for (const TextPiece& piece : fonts_.Pieces(op.font, Win::Widen(op.text))) {
            Win::SelectGuard font(dc_, piece.font);
            UINT length = static_cast<UINT>(piece.text.size());
            ::ExtTextOutW(dc_, at.x, at.y, ETO_CLIPPED, &clip, piece.text.c_str(), length, nullptr);
            SIZE extent{};
            ::GetTextExtentPoint32W(dc_, piece.text.c_str(), static_cast<int>(length), &extent);
            if (op.font == FontRole::TitleVertical)
                at.y -= extent.cx;
            else
                at.x += extent.cx;
        }
    }

    void operator()(const IconOp& op) {
        HICON icon = icons_ ? icons_(op.item) : nullptr;
        if (icon)
            ::DrawIconEx(dc_, op.rect.left, op.rect.top, icon, op.rect.Width(), op.rect.Height(), 0, nullptr,
                         DI_NORMAL);
    }

    void operator()(const PictureOp& op) {
        if (pictures_)
            pictures_(dc_, op);
    }

private:
    HDC dc_;
    const MenuFonts& fonts_;
    const IconLookup& icons_;
    const PictureDrawer& pictures_;
    Win::SelectGuard pen_;
    Win::SelectGuard brush_;
};

} // namespace

void Render(HDC dc, const DrawList& list, const MenuFonts& fonts, const IconLookup& icons,
            const PictureDrawer& pictures) {
    Painter painter(dc, fonts, icons, pictures);
    for (const DrawOp& op : list)
        std::visit(painter, op);
}

} // namespace MenuWindow
