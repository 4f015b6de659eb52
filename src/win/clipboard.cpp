#include "win/clipboard.h"

#include <algorithm>
#include <memory>
#include <type_traits>

#include "win/errors.h"

namespace quillomat {
namespace {

/// The clipboard while this program has it open.
class OpenClipboardScope {
  public:
    explicit OpenClipboardScope(HWND owner) {
        if (!OpenClipboard(owner)) {
            throw Error(ErrorCode::ClipboardError,
                        L"The clipboard is being used by another program. Nothing was copied; please try again.");
        }
    }
    ~OpenClipboardScope() { CloseClipboard(); }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
};

/// A block of memory that can be given to the clipboard.
using GlobalMemory = std::unique_ptr<std::remove_pointer_t<HGLOBAL>, decltype(&GlobalFree)>;

GlobalMemory global_copy(std::wstring_view text) {
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t)), &GlobalFree);
    auto* const characters = memory ? static_cast<wchar_t*>(GlobalLock(memory.get())) : nullptr;
    if (!characters) throw Error(ErrorCode::OutOfMemory);
    std::replace_copy(text.begin(), text.end(), characters, L'\0', L' ');
    characters[text.size()] = L'\0';
    GlobalUnlock(memory.get());
    return memory;
}

bool clipboard_is_free() {
    if (!OpenClipboard(nullptr)) return false;
    CloseClipboard();
    return true;
}

}  // namespace

void wait_for_clipboard() {
    // Programs that watch the clipboard open it for a moment whenever it changes.
    constexpr DWORD milliseconds = 3000;
    constexpr DWORD between_attempts = 20;
    for (DWORD waited = 0; waited < milliseconds && !clipboard_is_free(); waited += between_attempts) {
        Sleep(between_attempts);
    }
}

void put_on_clipboard(HWND owner, std::wstring_view text) {
    // All that can fail for want of memory comes before the clipboard is touched.
    GlobalMemory memory = global_copy(text);
    const OpenClipboardScope clipboard(owner);
    // The system gives the clipboard to the one who empties it, and only its owner may fill it. Nobody sees it empty:
    // it is open to this program alone.
    if (!EmptyClipboard() || !SetClipboardData(CF_UNICODETEXT, memory.get())) throw_last_error();
    // From here on the memory is the clipboard's.
    static_cast<void>(memory.release());
}

}  // namespace quillomat
