#include "menuwindow/win/gdiplus_session.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace MenuWindow {

namespace {

class GdiplusToken {
public:
    GdiplusToken() {
        Gdiplus::GdiplusStartupInput input;
        started_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
    }
    GdiplusToken(const GdiplusToken&) = delete;
    GdiplusToken& operator=(const GdiplusToken&) = delete;
    ~GdiplusToken() {
        if (started_)
            Gdiplus::GdiplusShutdown(token_);
    }
    bool started() const { return started_; }

private:
    ULONG_PTR token_ = 0;
    bool started_ = false;
};

} // namespace

bool EnsureGdiplus() {
    static GdiplusToken token;
    return token.started();
}

} // namespace MenuWindow
