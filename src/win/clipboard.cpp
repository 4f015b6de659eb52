#include "win/clipboard.h"

#include <algorithm>
#include <memory>
#include <type_traits>

#include "win/errors.h"

namespace quillomat {
namespace {

// Programs that watch the clipboard open it for a moment whenever it changes.
constexpr int attempts = 10;
constexpr DWORD pause_between_attempts = 50;  // milliseconds

/// The clipboard while this program has it open.
class OpenClipboardScope {
  public:
    explicit OpenClipboardScope(HWND owner) {
        for (int attempt = 1; !OpenClipboard(owner); ++attempt) {
            if (attempt == attempts) {
                throw Error(ErrorCode::ClipboardError,
                            L"The clipboard is being used by another program. Nothing was copied; please try again.");
            }
            Sleep(pause_between_attempts);
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

}  // namespace

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
