// The clipboard as another program meets it: it reads what was copied, or has the clipboard open at the wrong moment.

#include "win/clipboard.h"

#include <array>
#include <fstream>
#include <optional>
#include <thread>

#include "support.h"
#include "temporary.h"
#include "text/error.h"

namespace quillomat {
namespace {

constexpr wchar_t answer_variable[] = L"QUILLOMAT_CLIPBOARD_ANSWER";

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
    /// Runs this program again, as another one that reads the clipboard.
    std::wstring text_for_another_program() {
        const std::filesystem::path answer = folder_.path() / "answer";
        SetEnvironmentVariableW(answer_variable, answer.c_str());
        std::array<wchar_t, MAX_PATH> program{};
        GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
        std::wstring command = L'"' + std::wstring(program.data()) +
                               L"\" --gtest_filter=AnotherProgram.* --gtest_also_run_disabled_tests --gtest_brief=1";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION started{};
        EXPECT_TRUE(
            CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &started));
        // It may ask this one for what is on the clipboard, so messages are handled meanwhile.
        EXPECT_TRUE(pump_until([&] { return WaitForSingleObject(started.hProcess, 0) == WAIT_OBJECT_0; }));
        CloseHandle(started.hThread);
        CloseHandle(started.hProcess);
        std::ifstream file(answer, std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), {});
        return {reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t)};
    }

    HWND owner = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    ~ClipboardTest() override { DestroyWindow(owner); }

  private:
    TemporaryFolder folder_;
};

TEST(AnotherProgram, DISABLED_WritesWhatItFindsOnTheClipboard) {
    std::array<wchar_t, MAX_PATH> answer{};
    ASSERT_NE(GetEnvironmentVariableW(answer_variable, answer.data(), MAX_PATH), 0u);
    const auto text = clipboard_text();
    ASSERT_TRUE(text);
    std::ofstream(std::filesystem::path(answer.data()), std::ios::binary)
        .write(reinterpret_cast<const char*>(text->data()),
               static_cast<std::streamsize>(text->size() * sizeof(wchar_t)));
}

TEST_F(ClipboardTest, AnotherProgramReadsWhatWasCopied) {
    const std::wstring text = L"\u00C9t\u00E9 \u65E5\r\n\r\n" + std::wstring(100'000, L'x') + L"end";
    put_on_clipboard(owner, text);
    EXPECT_TRUE(text_for_another_program() == text);

    using namespace std::string_literals;
    put_on_clipboard(owner, L"a\0b"s);
    EXPECT_EQ(clipboard_text(), L"a b") << "nothing behind a NUL is lost";
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
