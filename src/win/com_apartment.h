#pragma once

#include "win/api.h"
// Needs <windows.h> before it.
#include <objbase.h>

namespace quillomat {

/// Initialises COM for this thread until the end of the scope. The shell's functions require COM, because extensions of
/// the shell may use it.
class ComApartment {
  public:
    ComApartment() : ready_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {}
    ~ComApartment() {
        if (ready_) CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

  private:
    bool ready_;
};

}  // namespace quillomat
