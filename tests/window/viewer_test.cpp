// The cheat viewer as a player meets it: opening, selecting, searching, closing.

#include <filesystem>
#include <fstream>
#include <memory>

#include "common/session.h"
#include "support.h"
#include "temporary.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

constexpr char database[] =
    "Type in the game.\r\nIDDQD - no harm\r\n$$$$$$$$$$$$$$$$$$$$ Alpha\r\n"
    "MARIO warps\r\n$$$$$$$$$$$$$$$$$$$$ Amber & Ash\r\n"
    "mario once\r\n$$$$$$$$$$$$$$$$$$$$ Beta\r\n"
    "\xC9t\xE9 code\r\n$$$$$$$$$$$$$$$$$$$$ Super MARIO\r\n"
    "last\r\n$$$$$$$$$$$$$$$$$$$$ beta\r\n";

class ViewerTest : public WindowTest {
  protected:
    ViewerTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
        write("Cheats.dat", database);
    }

    void write(const char* name, std::string_view bytes) const {
        std::ofstream(folder.path() / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    void open() {
        viewer = std::make_unique<frmCtlView>(application, session, windows);
        viewer->on_closed = [this] { viewer.reset(); };
        viewer->show();
        pump();
    }
    void close() {
        viewer->close();
        ASSERT_TRUE(pump_until([this] { return !viewer; }));
    }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
    ViewerWindows windows;
    std::unique_ptr<frmCtlView> viewer;
};

TEST_F(ViewerTest, ShowsTheCheatsOfTheGameThatIsClicked) {
    open();
    ASSERT_EQ(viewer->List2.count(), 5);
    EXPECT_EQ(session.viewer.game_count, 5);
    EXPECT_FALSE(viewer->menus.mnuSave.enabled());
    EXPECT_FALSE(viewer->Command1.enabled());
    EXPECT_EQ(viewer->caption(), L"") << "the stored caption gives way to the game that is shown, here none";
    EXPECT_EQ(viewer->Text1.text(), L"(Click a game on the opposite side to see it's cheat codes in this box.)");

    RECT item{};
    SendMessageW(viewer->List2.window(), LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
    move_pointer(viewer->List2.window(), 20, (item.top + item.bottom) / 2);
    click();
    ASSERT_TRUE(pump_until([this] { return viewer->Text1.text() == L"MARIO warps"; }));
    EXPECT_EQ(viewer->caption(), L"Amber & Ash");
    EXPECT_TRUE(viewer->menus.mnuSave.enabled());
    EXPECT_EQ(viewer->menus.mnuSave.caption(), L"&Save Amber && Ash") << "the name's own ampersand is no access key";
}

}  // namespace
}  // namespace quillomat
