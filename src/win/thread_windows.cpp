#include "win/thread_windows.h"

#include <exception>

namespace quillomat {
namespace {

struct Collected {
    std::vector<HWND> windows;
    std::exception_ptr failure;
};

BOOL CALLBACK collect(HWND window, LPARAM parameter) {
    auto& collected = *reinterpret_cast<Collected*>(parameter);
    try {
        collected.windows.push_back(window);
        return TRUE;
    } catch (...) {
        // An exception must not propagate into Windows, which calls this function.
        collected.failure = std::current_exception();
        return FALSE;
    }
}

}  // namespace

std::vector<HWND> thread_windows() {
    Collected collected;
    EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&collected));
    if (collected.failure) std::rethrow_exception(collected.failure);
    return std::move(collected.windows);
}

}  // namespace quillomat
