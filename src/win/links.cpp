#include "win/links.h"

#include "win/api.h"
// These need <windows.h> before them.
#include <objbase.h>
#include <shellapi.h>

namespace quillomat {
namespace {

// Initialises COM for this thread: Windows starts some browsers through COM.
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

}  // namespace

bool open_link(const std::wstring& address) {
    const ComApartment apartment;
    const auto result =
        reinterpret_cast<INT_PTR>(ShellExecuteW(nullptr, nullptr, address.c_str(), nullptr, L"C:\\", SW_SHOWNORMAL));
    constexpr INT_PTR last_error = 32;
    return result > last_error;
}

}  // namespace quillomat
