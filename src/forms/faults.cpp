#include "forms/faults.h"

#include <new>

#include "forms/application.h"
#include "forms/message_box.h"
#include "text/error.h"

namespace quillomat {
namespace {

// Returns the description of the exception being handled, or an empty string if it need not be reported.
std::wstring current_description() {
    try {
        throw;
    } catch (const Error& error) {
        if (error.code() == ErrorCode::Cancelled) return {};
        return error.description();
    } catch (const std::bad_alloc&) {
        return Error(ErrorCode::OutOfMemory).description();
    } catch (const std::exception& error) {
        const std::string narrow = error.what();
        return {narrow.begin(), narrow.end()};
    } catch (...) {
        return L"Unknown error";
    }
}

}  // namespace

void Faults::note_current_exception(HWND window, Occasion occasion) noexcept {
    try {
        std::wstring description = current_description();
        if (!description.empty()) note(window, std::move(description), occasion);
    } catch (...) {
        // There was no memory for the description.
        could_not_note_ = true;
    }
    // Wakes the message loop: a handler called by a sent message does not end its wait.
    PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void Faults::note(HWND window, std::wstring description, Occasion occasion) {
    if (occasion == Occasion::Repeating && !repeating_.emplace(window, description).second) return;
    noted_.push_back({window, std::move(description)});
}

void Faults::report() {
    if (std::exchange(could_not_note_, false)) noted_.push_back({nullptr, Error(ErrorCode::OutOfMemory).description()});
    while (!noted_.empty()) {
        // Another exception may be recorded while the message box is shown.
        const Fault fault = std::move(noted_.front());
        noted_.erase(noted_.begin());
        show_message(application_, fault.window,
                     {.text = fault.description, .title = application_.title(), .icon = MessageIcon::Critical});
    }
}

void Faults::forget(HWND window) {
    std::erase_if(repeating_, [window](const auto& entry) { return entry.first == window; });
}

}  // namespace quillomat
