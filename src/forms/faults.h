#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "win/api.h"

namespace quillomat {

class Application;

/// What a handler was running for when it failed.
enum class Occasion {
    /// Something the user did: each failure is reported.
    Action,
    /// Painting or a timer, which would fail again and again: a window's failure is reported once.
    Repeating,
};

/// Reports exceptions that left a handler, in critical message boxes with their descriptions. They are noted when they
/// are caught and reported later, from the message loop, so that no message box opens in the middle of painting.
class Faults {
  public:
    explicit Faults(Application& application) : application_(application) {}
    Faults(const Faults&) = delete;
    Faults& operator=(const Faults&) = delete;

    /// Notes the exception being handled, which came from a handler of `window`. One that says that the user cancelled
    /// is no fault.
    void note_current_exception(HWND window, Occasion occasion) noexcept;
    /// Reports what was noted; for the message loop.
    void report();
    /// A window is being destroyed: what its successor with the same handle does is reported again.
    void forget(HWND window);

  private:
    struct Fault {
        HWND window;
        std::wstring description;
    };
    void note(HWND window, std::wstring description, Occasion occasion);

    Application& application_;
    std::vector<Fault> noted_;
    std::set<std::pair<HWND, std::wstring>> repeating_;  // noted once, not to be noted again
    bool could_not_note_ = false;
};

}  // namespace quillomat
