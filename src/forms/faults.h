#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "win/api.h"

namespace quillomat {

class Application;

/// Why a handler was running when it failed.
enum class Occasion {
    /// For an action of the user: every failure is reported.
    Action,
    /// For painting or a timer, which would fail again and again: the failure is reported once per window.
    Repeating,
};

/// Reports exceptions that leave a handler in critical message boxes. Exceptions are recorded when they are caught and
/// reported by the message loop, so that no message box opens during painting.
class Faults {
  public:
    explicit Faults(Application& application) : application_(application) {}
    Faults(const Faults&) = delete;
    Faults& operator=(const Faults&) = delete;

    /// Records the exception being handled, which has left a handler of `window`. An `Error` with Cancelled is ignored.
    void note_current_exception(HWND window, Occasion occasion) noexcept;
    /// Shows the recorded exceptions. For the message loop.
    void report();
    /// Forgets a window that is being destroyed, because Windows may reuse its handle.
    void forget(HWND window);

  private:
    struct Fault {
        HWND window;
        std::wstring description;
    };
    void note(HWND window, std::wstring description, Occasion occasion);

    Application& application_;
    std::vector<Fault> noted_;
    std::set<std::pair<HWND, std::wstring>> repeating_;  // recorded once already
    bool could_not_note_ = false;
};

}  // namespace quillomat
