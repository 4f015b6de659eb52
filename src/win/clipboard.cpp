#include "win/clipboard.h"

#include <algorithm>
#include <memory>
#include <type_traits>

#include "win/errors.h"

namespace quillomat {
namespace {

// Opens the clipboard, and closes it at the end of the scope.
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

// Memory of the kind that the clipboard takes over.
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
    // Clipboard managers open the clipboard briefly after every change.
    constexpr DWORD milliseconds = 3000;
    constexpr DWORD between_attempts = 20;
    for (DWORD waited = 0; waited < milliseconds && !clipboard_is_free(); waited += between_attempts) {
        Sleep(between_attempts);
    }
}

void put_on_clipboard(HWND owner, std::wstring_view text) {
    // Copy the text first: if there is no memory for it, the clipboard keeps what it holds.
    GlobalMemory memory = global_copy(text);
    const OpenClipboardScope clipboard(owner);
    // SetClipboardData works only for the window that EmptyClipboard has made the clipboard's owner.
    if (!EmptyClipboard() || !SetClipboardData(CF_UNICODETEXT, memory.get())) throw_last_error();
    static_cast<void>(memory.release());  // The clipboard owns the memory now.
}

}  // namespace quillomat
