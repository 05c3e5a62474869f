// The accessible object of a menu window (MSAA IAccessible, child id i for item i):
// it answers a screen reader's questions from the records the core describes, and
// hands the reader's requests to the window. A reader may hold it after the window is
// gone; every call then fails with RPC_E_DISCONNECTED.
#pragma once

#include "menuwindow/interaction/menu_access.h"

#include <windows.h>

#include <oleacc.h>

#include <string>

class MenuAccessSource {
public:
    virtual MenuWindow::MenuAccess DescribeForAccess() const = 0;
    virtual HWND AccessWindow() const = 0;
    // Selects an item and, with choose, chooses it; the window does it later, not inside
    // the reader's call, since choosing may close the window.
    virtual void ActForAccess(int item, bool choose) = 0;

protected:
    ~MenuAccessSource() = default;
};

class MenuAccessible final : public IAccessible {
public:
    // Starts with one reference, the caller's.
    explicit MenuAccessible(MenuAccessSource& source) : source_(&source) {}
    MenuAccessible(const MenuAccessible&) = delete;
    MenuAccessible& operator=(const MenuAccessible&) = delete;

    // The window is going: later calls fail, and readers in other processes lose their hold.
    void Disconnect();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    ~MenuAccessible() = default;
    template <class Answer>
    HRESULT About(const VARIANT& child, Answer answer);
    HRESULT TextOf(const VARIANT& child, BSTR* out, std::string MenuWindow::AccessObject::*text);
    HRESULT NoText(BSTR* out) const;

    MenuAccessSource* source_; // none once the window is gone
    ULONG references_ = 1;
};
