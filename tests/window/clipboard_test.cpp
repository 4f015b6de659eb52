// The clipboard as another program meets it: it reads what was copied, or has it open at the wrong moment.

#include "win/clipboard.h"

#include <optional>
#include <thread>

#include "support.h"
#include "text/error.h"

namespace quillomat {
namespace {

std::optional<std::wstring> clipboard_text() {
    if (!OpenClipboard(nullptr)) return std::nullopt;
    std::optional<std::wstring> text;
    if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(GlobalLock(memory));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

/// Another program, in its own thread, that opens the clipboard and keeps it open for a while.
class ClipboardHog {
  public:
    explicit ClipboardHog(DWORD milliseconds = INFINITE)
        : thread_([this, milliseconds] {
              opened_ = OpenClipboard(nullptr);
              SetEvent(ready_);
              WaitForSingleObject(enough_, milliseconds);
              if (opened_) CloseClipboard();
          }) {
        WaitForSingleObject(ready_, INFINITE);
    }
    ~ClipboardHog() {
        SetEvent(enough_);
        thread_.join();
        CloseHandle(ready_);
        CloseHandle(enough_);
    }

    bool has_it() const { return opened_; }

  private:
    HANDLE ready_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE enough_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    bool opened_ = false;
    std::thread thread_;
};

class ClipboardTest : public WindowTest {
  protected:
    ~ClipboardTest() override { DestroyWindow(owner); }

    HWND owner = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(ClipboardTest, HoldsWhatWasCopiedToTheEnd) {
    using namespace std::string_literals;
    const std::wstring text = L"a\0b\u65E5\r\n"s + std::wstring(100'000, L'x') + L"end";
    put_on_clipboard(owner, text);
    EXPECT_EQ(clipboard_text(), L"a b" + text.substr(3)) << "nothing behind a NUL is lost";
}

TEST_F(ClipboardTest, AProgramThatHasItOpenForAMomentIsWaitedFor) {
    put_on_clipboard(owner, L"before");
    const ClipboardHog hog(20);
    ASSERT_TRUE(hog.has_it());
    EXPECT_NO_THROW(put_on_clipboard(owner, L"after"));
    EXPECT_EQ(clipboard_text(), L"after");
}

TEST_F(ClipboardTest, AProgramThatKeepsItOpenIsReportedAndNothingChanges) {
    put_on_clipboard(owner, L"before");
    {
        const ClipboardHog hog;
        ASSERT_TRUE(hog.has_it());
        try {
            put_on_clipboard(owner, L"after");
            FAIL() << "copied to a clipboard that cannot be opened";
        } catch (const Error& error) {
            EXPECT_EQ(error.code(), ErrorCode::ClipboardError);
        }
    }
    EXPECT_EQ(clipboard_text(), L"before");
}

}  // namespace
}  // namespace quillomat
