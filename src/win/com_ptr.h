// Holds one reference to a COM object and releases it when it goes.
#pragma once

#include <unknwn.h>

#include <utility>

namespace Win {

template <class Interface>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr() { reset(); }

    Interface* get() const { return pointer_; }
    Interface* operator->() const { return pointer_; }
    explicit operator bool() const { return pointer_ != nullptr; }
    // For a function that hands out a new reference; any held one is released first.
    Interface** put() {
        reset();
        return &pointer_;
    }
    // Takes over a reference the caller holds, or none, and releases the one held before.
    void reset(Interface* pointer = nullptr) {
        if (Interface* old = std::exchange(pointer_, pointer))
            old->Release();
    }

private:
    Interface* pointer_ = nullptr;
};

} // namespace Win
