#include "prefs/win/file_drop_target.h"

#include <ole2.h>
#include <shellapi.h>

#include <atomic>
#include <utility>

namespace PrefsWin {

namespace {

FORMATETC FileListFormat() {
    return {CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

// A storage medium handed over by GetData, released with it.
class Medium {
public:
    explicit Medium(IDataObject& data) {
        FORMATETC format = FileListFormat();
        taken_ = SUCCEEDED(data.GetData(&format, &medium_));
    }
    ~Medium() {
        if (taken_)
            ::ReleaseStgMedium(&medium_);
    }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;

    HDROP files() const { return taken_ ? static_cast<HDROP>(medium_.hGlobal) : nullptr; }

private:
    STGMEDIUM medium_{};
    bool taken_ = false;
};

std::vector<std::wstring> PathsOf(HDROP drop) {
    std::vector<std::wstring> paths;
    const UINT count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT file = 0; file < count; ++file) {
        std::wstring path(::DragQueryFileW(drop, file, nullptr, 0) + 1, L'\0');
        path.resize(::DragQueryFileW(drop, file, path.data(), static_cast<UINT>(path.size())));
        if (!path.empty())
            paths.push_back(std::move(path));
    }
    return paths;
}

} // namespace

class FileDropTarget::Target final : public IDropTarget {
public:
    Target(Dropped dropped, Over over) : dropped_(std::move(dropped)), over_(std::move(over)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (!::IsEqualIID(id, IID_IUnknown) && !::IsEqualIID(id, IID_IDropTarget))
            return E_NOINTERFACE;
        *object = static_cast<IDropTarget*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) override {
        FORMATETC format = FileListFormat();
        files_ = data && data->QueryGetData(&format) == S_OK;
        return DragOver(keys, point, effect);
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL point, DWORD* effect) override {
        *effect = files_ ? DROPEFFECT_COPY : DROPEFFECT_NONE;
        if (files_)
            over_(POINT{point.x, point.y});
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override {
        over_(std::nullopt);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL point, DWORD* effect) override {
        over_(std::nullopt);
        *effect = DROPEFFECT_NONE;
        if (!data)
            return S_OK;
        const Medium medium(*data);
        if (!medium.files())
            return S_OK;
        const std::vector<std::wstring> paths = PathsOf(medium.files());
        if (paths.empty())
            return S_OK;
        *effect = DROPEFFECT_COPY;
        dropped_(paths, {point.x, point.y});
        return S_OK;
    }

private:
    Dropped dropped_;
    Over over_;
    std::atomic<ULONG> references_ = 1;
    bool files_ = false;
};

FileDropTarget::FileDropTarget(HWND window, Dropped dropped, Over over)
    : window_(window), target_(new Target(std::move(dropped), std::move(over))) {
    ::RegisterDragDrop(window_, target_);
}

FileDropTarget::~FileDropTarget() {
    ::RevokeDragDrop(window_);
    target_->Release();
}

} // namespace PrefsWin
