// The program as it is handed out: started with a question, and with a mail program that cannot be loaded.

#include <gtest/gtest.h>

#include "program/program.h"

namespace quillomat {
namespace {

using Games = std::vector<std::wstring>;

std::string record(const std::string& cheats, const std::string& name) {
    return cheats + "\r\n$$$$$$$$$$$$$$$$$$$$ " + name + "\r\n";
}

TEST(Start, WithAQuestionShowsTheViewerWithItsAnswer) {
    Program program;
    program.write_database(record("all", "Doom") + record("god mode", "Doom II") + record("", "Quake") +
                           record("God too", "Blood"));
    const std::tuple<std::wstring, std::wstring, Games> questions[] = {
        {L"doom", L"Doom", {}},
        {L"\"DOOM\"  ii ", L"Doom II", {}},
        {L"quak", L"Quake", {L"Quake"}},
        {L"oo", L"", {L"Doom", L"Doom II", L"Blood"}},
        {L"god", L"", {L"Doom II", L"Blood"}},
        {L"god mode", L"Doom II", {L"Doom II"}},
        {std::wstring(10'000, L'x'), L"", {}},
        {L"%s\\\"\u2028/?", L"", {}},
    };
    for (const auto& [arguments, caption, found] : questions) {
        program.start(arguments);
        ASSERT_TRUE(wait_until([&] { return program.viewer() || program.find(L"frmSplash"); }));
        ASSERT_TRUE(program.viewer()) << "no splash";
        if (caption.empty() && found.empty()) {
            ASSERT_TRUE(wait_until([&] { return program.message().starts_with(L"Nothing there.: "); }));
            ASSERT_TRUE(program.dismiss_message());
            EXPECT_EQ(games_of(program.viewer()).size(), 4U);
        }
        EXPECT_TRUE(wait_until([&] {
            return results_of(program.viewer()) == found && (caption.empty() || text_of(program.viewer()) == caption);
        })) << arguments;
        PostMessageW(program.viewer(), WM_CLOSE, 0, 0);
        EXPECT_EQ(program.exit_code(), 0U) << "no other window is open";
    }
    program.start(L" \"\" \t");
    EXPECT_TRUE(wait_until([&] { return program.find(L"frmSplash"); }));
}

/// The system looks for a mail program once in each process, so each of these needs one of its own.
TEST(Mail, AProgramThatCannotBeLoadedIsReportedAndTheMessageStays) {
    if (!GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")) GTEST_SKIP() << "it could send a mail";
    constexpr wchar_t key[] = L"Software\\Clients\\Mail\\Broken";
    Program program;
    std::string library = bytes_of(Program::executable);
    library.replace(library.find("PE", 0x40) + 4, 2, "\x4C\x01");  // 32-bit
    for (const std::string& bytes : {std::string(), std::string("nonsense"), library}) {
        program.write_database(bytes);
        const std::wstring path = program.database().wstring() + (bytes.empty() ? L".missing" : L"");
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Clients\\Mail", nullptr, REG_SZ, L"Broken", sizeof L"Broken");
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, L"DLLPath", REG_SZ, path.c_str(),
                        static_cast<DWORD>(2 * path.size() + 2));
        program.start();
        ASSERT_TRUE(program.reach_main_screen());
        // The author's picture, on the band of colour behind the buttons.
        const HWND band = ChildWindowFromPoint(program.find(L"frmMain"), {1, 60});
        PostMessageW(band, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(345, 38));
        ASSERT_TRUE(wait_until([&] { return program.message().starts_with(L"Message: "); }));
        ASSERT_TRUE(program.dismiss_message() && wait_until([&] { return program.find(L"frmMailMe"); }));
        const HWND window = program.find(L"frmMailMe");
        for (const HWND parent : {FindWindowExW(window, nullptr, L"ComboBox", nullptr), window}) {
            const HWND edit = FindWindowExW(parent, nullptr, L"Edit", nullptr);
            SendMessageW(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(L"Hi"));
        }
        PostMessageW(FindWindowExW(window, nullptr, L"Button", L"&Send!"), BM_CLICK, 0, 0);
        EXPECT_TRUE(wait_until([&] {
            // The system's library first tells in a message of its own what it lacks.
            if (program.message().starts_with(L"Send Mail: ")) program.dismiss_message();
            return program.message().starts_with(L"Quillomat: The message was not sent");
        })) << path;
        EXPECT_TRUE(program.dismiss_message() && IsWindowVisible(window));
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Clients\\Mail", nullptr);
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, key);
    }
}

}  // namespace
}  // namespace quillomat

int wmain(int count, wchar_t** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (count != 2) return 2;
    quillomat::Program::executable = std::filesystem::absolute(arguments[1]);
    return RUN_ALL_TESTS();
}
