// The thread's COM apartment for as long as the object lives: the shell's start
// functions may hand a file to handlers that need one.
#pragma once

#include <objbase.h>

namespace Win {

class ComApartment {
public:
    ComApartment() : initialised_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {}
    ~ComApartment() {
        if (initialised_)
            ::CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    bool initialised_;
};

} // namespace Win
