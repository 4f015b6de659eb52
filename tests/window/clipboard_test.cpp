// The clipboard as another program meets it: it reads what was copied, or has it open at the wrong moment.

#include "win/clipboard.h"

#include <future>
#include <thread>

#include "support.h"
#include "text/error.h"

namespace quillomat {
namespace {

using namespace std::string_literals;

class ClipboardTest : public WindowTest {
  protected:
    ~ClipboardTest() override { DestroyWindow(owner); }

    HWND owner = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(ClipboardTest, HoldsWhatWasCopiedToTheEnd) {
    const std::wstring text = L"a\0b\u65E5\r\n"s + std::wstring(100'000, L'x') + L"end";
    put_on_clipboard(owner, text);
    EXPECT_EQ(clipboard_text(), L"a b" + text.substr(3)) << "nothing behind a NUL is lost";
}

TEST_F(ClipboardTest, AProgramThatKeepsItOpenIsReportedAndNothingChanges) {
    put_on_clipboard(owner, L"before");
    std::promise<void> opened;
    std::promise<void> enough;
    std::thread other_program([&] {
        EXPECT_TRUE(OpenClipboard(nullptr));
        opened.set_value();
        enough.get_future().wait();
        CloseClipboard();
    });
    opened.get_future().wait();
    try {
        put_on_clipboard(owner, L"after");
        ADD_FAILURE() << "copied to a clipboard that cannot be opened";
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), ErrorCode::ClipboardError);
    }
    enough.set_value();
    other_program.join();
    EXPECT_EQ(clipboard_text(), L"before");
}

}  // namespace
}  // namespace quillomat
