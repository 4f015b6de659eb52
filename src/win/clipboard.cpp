#include "win/clipboard.h"

#include <algorithm>
#include <utility>

#include "win/errors.h"

namespace quillomat {
namespace {

/// A block of memory that the clipboard can take over.
class ClipboardMemory {
  public:
    explicit ClipboardMemory(std::wstring_view text)
        : memory_(GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t))) {
        if (!memory_) throw Error(ErrorCode::OutOfMemory);
        auto* const characters = static_cast<wchar_t*>(GlobalLock(memory_));
        *std::copy(text.begin(), text.end(), characters) = L'\0';
        GlobalUnlock(memory_);
    }
    ~ClipboardMemory() {
        if (memory_) GlobalFree(memory_);
    }
    ClipboardMemory(const ClipboardMemory&) = delete;
    ClipboardMemory& operator=(const ClipboardMemory&) = delete;

    /// Puts it on the clipboard, which owns it from then on.
    void hand_over() {
        if (!SetClipboardData(CF_UNICODETEXT, memory_)) throw_last_error();
        memory_ = nullptr;
    }

  private:
    HGLOBAL memory_;
};

class OpenClipboardScope {
  public:
    explicit OpenClipboardScope(HWND owner) {
        // Programs that watch the clipboard open it for a moment whenever it has changed.
        constexpr int attempts = 20;
        constexpr DWORD pause_milliseconds = 10;
        for (int attempt = 1; !OpenClipboard(owner); ++attempt) {
            if (attempt == attempts) throw_last_error();
            Sleep(pause_milliseconds);
        }
    }
    ~OpenClipboardScope() { CloseClipboard(); }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
};

}  // namespace

void set_clipboard_text(HWND owner, std::wstring_view text) {
    ClipboardMemory memory(text);
    const OpenClipboardScope clipboard(owner);
    if (!EmptyClipboard()) throw_last_error();
    memory.hand_over();
}

}  // namespace quillomat
