#include "win/links.h"

#include "win/system_function.h"
// Need the above.
#include <objbase.h>
#include <shellapi.h>

namespace quillomat {
namespace {

/// Some browsers are started through COM, which the thread must have ready.
class ComApartment {
  public:
    ComApartment() {
        const auto initialise = system_function<decltype(CoInitializeEx)>(L"ole32.dll", "CoInitializeEx");
        ready_ = initialise && SUCCEEDED(initialise(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
    }
    ~ComApartment() {
        if (ready_) system_function<decltype(CoUninitialize)>(L"ole32.dll", "CoUninitialize")();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

  private:
    bool ready_ = false;
};

}  // namespace

bool open_link(const std::wstring& address) {
    const ComApartment apartment;
    const auto execute = system_function<decltype(ShellExecuteW)>(L"shell32.dll", "ShellExecuteW");
    if (!execute) return false;
    const auto result =
        reinterpret_cast<INT_PTR>(execute(nullptr, nullptr, address.c_str(), nullptr, L"C:\\", SW_SHOWNORMAL));
    constexpr INT_PTR last_error = 32;
    return result > last_error;
}

}  // namespace quillomat
