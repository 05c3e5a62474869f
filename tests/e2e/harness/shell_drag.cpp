#include "harness/shell_drag.h"

#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/wait.h"
#include "win/text_convert.h"

#include <ole2.h>
#include <shlobj.h>

#include <atomic>
#include <cstring>
#include <thread>

namespace E2e {

namespace {

FORMATETC FileListFormat() {
    return {CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

// Lives on the dragging thread's stack for longer than any reference COM hands out.
template <typename Interface>
class StackObject : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (!::IsEqualIID(id, IID_IUnknown) && !::IsEqualIID(id, __uuidof(Interface)))
            return E_NOINTERFACE;
        *object = static_cast<Interface*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

// The shell's list of paths: a DROPFILES block, the paths each ending in a zero, one zero more.
class FileList final : public StackObject<IDataObject> {
public:
    explicit FileList(const std::vector<std::string>& paths) {
        for (const std::string& path : paths) {
            list_ += Win::Widen(path);
            list_ += L'\0';
        }
        list_ += L'\0';
    }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK)
            return DV_E_FORMATETC;
        const std::size_t bytes = sizeof(DROPFILES) + list_.size() * sizeof(wchar_t);
        HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, bytes);
        if (!memory)
            return E_OUTOFMEMORY;
        auto* block = static_cast<DROPFILES*>(::GlobalLock(memory));
        block->pFiles = sizeof(DROPFILES);
        block->fWide = TRUE;
        std::memcpy(block + 1, list_.data(), list_.size() * sizeof(wchar_t));
        ::GlobalUnlock(memory);
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = memory;
        medium->pUnkForRelease = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        return format && format->cfFormat == CF_HDROP && (format->tymed & TYMED_HGLOBAL) ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
        if (direction != DATADIR_GET)
            return E_NOTIMPL;
        FORMATETC format = FileListFormat();
        return ::SHCreateStdEnumFmtEtc(1, &format, formats);
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override {
        out->ptd = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    std::wstring list_;
};

// Drops when the test says so. A real drag drops when the left button goes up, but Wine
// takes the buttons' state from the X server, which knows of no pressed button.
class TestSource final : public StackObject<IDropSource> {
public:
    explicit TestSource(const std::atomic<bool>& release) : release_(release) {}
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD) override {
        if (escape)
            return DRAGDROP_S_CANCEL;
        return release_ ? DRAGDROP_S_DROP : S_OK;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }

private:
    const std::atomic<bool>& release_;
};

// The drag's loop can go on with a point from before the last move (seen under load:
// the row crossed last stays marked), so the cursor is nudged by a pixel on the target
// until the target answers.
bool ReadyAfterNudges(POINT to, const std::function<bool()>& readyToDrop) {
    for (int nudge = 0; nudge < 40; ++nudge) {
        if (WaitUntil(readyToDrop, 250ms))
            return true;
        MoveMouse(to.x + (nudge % 2 == 0 ? 1 : 0), to.y);
    }
    return false;
}

} // namespace

// The drag's loop looks at the cursor and asks the source on every tick of its timer.
::testing::AssertionResult DragFilesFromShell(const std::vector<std::string>& paths, POINT from, POINT to,
                                              const std::function<bool()>& readyToDrop) {
    std::atomic<bool> dragging = false;
    std::atomic<bool> release = false;
    std::atomic<HRESULT> result = E_FAIL;
    std::atomic<DWORD> effect = DROPEFFECT_NONE;
    std::thread dragger([&] {
        FileList files(paths);
        TestSource source(release);
        if (FAILED(::OleInitialize(nullptr)))
            return;
        dragging = true;
        DWORD taken = DROPEFFECT_NONE;
        result = ::DoDragDrop(&files, &source, DROPEFFECT_COPY | DROPEFFECT_LINK, &taken);
        effect = taken;
        ::OleUninitialize();
    });
    std::string failure;
    if (!WaitUntil([&] { return dragging.load(); }, 10s) || !MoveMouse(from.x, from.y)) {
        failure = "the drag did not start";
    } else {
        constexpr int kSteps = 8;
        for (int step = 1; step < kSteps; ++step)
            MoveMouse(from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps);
        if (!MoveMouse(to.x, to.y))
            failure = "the cursor did not reach the target";
        else if (!ReadyAfterNudges(to, readyToDrop) && SaveNamedScreenshot("shell-drag-not-ready"))
            failure = "the target did not show that it would take the drop (shell-drag-not-ready.bmp)";
    }
    release = true;
    dragger.join();
    if (failure.empty() && (result != DRAGDROP_S_DROP || effect == DROPEFFECT_NONE))
        failure = "the drop was not taken (result " + std::to_string(result) + ", effect " + std::to_string(effect) + ")";
    if (!failure.empty())
        return ::testing::AssertionFailure() << failure;
    return ::testing::AssertionSuccess();
}

} // namespace E2e
