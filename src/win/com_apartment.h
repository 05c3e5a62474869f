// The thread's COM apartment, with OLE, for as long as the object lives: the shell's
// start functions may hand a file to handlers that need one, and windows that take
// files dragged from the shell register as OLE drop targets.
#pragma once

#include <ole2.h>

namespace Win {

class ComApartment {
public:
    ComApartment() : initialised_(SUCCEEDED(::OleInitialize(nullptr))) {}
    ~ComApartment() {
        if (initialised_)
            ::OleUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    bool initialised_;
};

} // namespace Win
