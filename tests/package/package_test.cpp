// The installer and the zip as a player has them: installed, used, updated and removed, and no game is ever lost.

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

#include "program/program.h"
#include "text/product.h"
#include "version.h"
// Needs what they include.
#include <shellapi.h>

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr wchar_t registered_key[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Quillomat";
constexpr wchar_t settings_key[] = L"Software\\Quillomat\\Settings";
constexpr char added_game[] = "my own cheat\r\n$$$$$$$$$$$$$$$$$$$$ My own game\r\n";

// Holds what is handed out in app/, and the packages of it and of a later release in now/ and newer/.
fs::path packages;

std::set<std::wstring> names_in(const fs::path& folder) {
    std::set<std::wstring> names;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(folder, missing)) names.insert(entry.path().filename().wstring());
    return names;
}

// Empty when there is no such value.
std::wstring user_text(const wchar_t* key, const wchar_t* name) {
    wchar_t text[1024]{};
    DWORD size = sizeof text;
    if (RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS) return {};
    return text;
}

// Runs a command line to its end and returns the exit code.
int run(const std::wstring& command) {
    return _wsystem((L"\"" + command + L"\"").c_str());
}

int install(const wchar_t* release, const std::wstring& options = {}) {
    for (const auto& entry : fs::directory_iterator(packages / release)) {
        if (entry.path().extension() == L".exe") return run(L"\"" + entry.path().wstring() + L"\" /S" + options);
    }
    throw std::runtime_error("there is no installer");
}

// Uninstalls what is registered, as "Apps & features" does. The uninstaller goes on by itself as a copy, because its
// own file has to go too; what is registered is the last to go.
bool uninstall() {
    run(user_text(registered_key, L"QuietUninstallString"));
    return wait_until([] { return user_text(registered_key, L"DisplayName").empty(); });
}

struct Package : testing::Test {
    // Takes away what the test before has left.
    Package() {
        for (const fs::path& path : {folder, other_folder, shortcut}) fs::remove_all(path);
        RegDeleteTreeW(HKEY_CURRENT_USER, registered_key);
    }

    fs::path file(const wchar_t* name) const { return folder / name; }
    void add_own_game() const { write_bytes(database, added_game, std::ios::app); }
    // Expects the program's files with this database, and beside them only `more`.
    void expect_files(const std::string& bytes, const std::set<std::wstring>& more = {}) const {
        std::set<std::wstring> names{L"Cheats.dat", L"Quillomat.exe", L"Uninstall.exe", L"readme.txt"};
        names.insert(more.begin(), more.end());
        EXPECT_EQ(names_in(folder), names);
        EXPECT_TRUE(bytes_of(database) == bytes);
    }

    const fs::path folder = fs::path(_wgetenv(L"LOCALAPPDATA")) / L"Programs" / L"Quillomat";
    const fs::path database = file(L"Cheats.dat");
    const fs::path other_folder = fs::temp_directory_path() / L"Quillomat of a player";
    const fs::path shortcut = fs::path(_wgetenv(L"APPDATA")) / L"Microsoft/Windows/Start Menu/Programs/Quillomat.lnk";
    const std::string shipped_database = bytes_of(packages / L"app" / L"Cheats.dat");
    const std::string newer_database = bytes_of(packages / L"app-newer" / L"Cheats.dat");
};

// Whether a file holds a text, as a shortcut its target or a program the texts of its version.
template <class Text>
bool holds(const fs::path& path, const Text& text) {
    const std::string_view bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof text[0]);
    return bytes_of(path).find(bytes) != std::string::npos;
}

TEST_F(Package, IsInstalledAndGoesWithoutATraceWhenNothingWasChanged) {
    constexpr wchar_t kept[] = L"kept";
    RegSetKeyValueW(HKEY_CURRENT_USER, settings_key, L"PackageTest", REG_SZ, kept, sizeof kept);
    ASSERT_EQ(install(L"now"), 0);
    expect_files(shipped_database);
    const fs::path program = file(L"Quillomat.exe");
    EXPECT_TRUE(holds(program, "<assembly "s) && holds(program, L"ProductVersion\0"s + L"" QUILLOMAT_RELEASE + L'\0'));
    EXPECT_GE(ExtractIconExW(program.c_str(), -1, nullptr, nullptr, 0), 1U);
    EXPECT_TRUE(holds(shortcut, program.string()));
    EXPECT_TRUE(holds(shortcut, _wgetenv(L"USERPROFILE") + L"\\Documents"s)) << "the folder the program starts in";
    EXPECT_EQ(user_text(registered_key, L"DisplayVersion"), L"" QUILLOMAT_RELEASE);

    write_bytes(file(L"Fonts.dat"), "Arial\r\n");
    ASSERT_EQ(install(L"newer"), 0);
    expect_files(newer_database, {L"Fonts.dat"});
    ASSERT_TRUE(uninstall());
    EXPECT_FALSE(fs::exists(folder));
    EXPECT_FALSE(fs::exists(shortcut));
    EXPECT_EQ(user_text(settings_key, L"PackageTest"), kept);
}

TEST_F(Package, AnUpdateBringsNewGamesAndKeepsThePlayersOwn) {
    const std::string own = added_game;
    const std::string both = own + "mine\r\n$$$$$$$$$$$$$$$$$$$$ A newer game\r\n";
    std::string edited = shipped_database;
    edited[edited.find("\r\n") - 1] = '!';
    std::string too_many;
    for (int number = 0; number < 2501; ++number) too_many += "$$$$$$$$$$$$$$$$$$$$ " + std::to_string(number) + "\r\n";
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"own games", shipped_database + own, newer_database + own},
        // The newer release has its one new game in front.
        {"a game that both have", shipped_database + both, shipped_database + both},
        {"edited by hand", edited + own, ""},
        {"a record half written", shipped_database + own + "half", ""},
        {"a name half written", shipped_database + own + "half\r\n$$$$$$$$$$$$$$$$$$$$ My\r", ""},
        {"a name missing", shipped_database + own + "$$$$$$$$$$$$$$$$$$$$\r\n", ""},
        {"more games than the program takes", shipped_database + too_many, ""},
        {"shorter than installed", shipped_database.substr(0, 100), ""},
        {"empty", "", ""},
    };
    for (const auto& [what, before, joined] : cases) {
        SCOPED_TRACE(what);
        fs::remove_all(folder);
        ASSERT_EQ(install(L"now"), 0);
        write_bytes(database, before);
        for (int time = 0; time < 2; ++time) {
            ASSERT_EQ(install(L"newer"), 0);
            if (!joined.empty()) {
                expect_files(joined);
                continue;
            }
            expect_files(before, {L"Cheats.new.dat"});
            EXPECT_TRUE(bytes_of(file(L"Cheats.new.dat")) == newer_database);
        }
    }
}

TEST_F(Package, KnowsThePlayersGamesFromThoseItInstalled) {
    ASSERT_EQ(install(L"now"), 0);
    add_own_game();
    ASSERT_EQ(install(L"now"), 0);
    expect_files(shipped_database + added_game);
    ASSERT_EQ(install(L"newer"), 0);
    fs::resize_file(database, newer_database.size());
    ASSERT_EQ(install(L"now"), 0);
    expect_files(shipped_database);

    add_own_game();
    ASSERT_TRUE(uninstall());
    EXPECT_EQ(names_in(folder), std::set<std::wstring>{L"Cheats.dat"});
    ASSERT_EQ(install(L"newer"), 0);
    // Nothing tells any more what was installed.
    expect_files(shipped_database + added_game, {L"Cheats.new.dat"});
}

TEST_F(Package, ChangesNothingWhileTheProgramRuns) {
    ASSERT_EQ(install(L"now"), 0);
    Program program(folder);
    program.start();
    ASSERT_TRUE(wait_until([&] { return program.find(L"frmSplash") != nullptr; }));

    constexpr int gave_up = 2;
    EXPECT_EQ(install(L"newer"), gave_up);
    // Told where it is, the uninstaller goes on in its own process.
    EXPECT_EQ(run(L"\"" + file(L"Uninstall.exe").wstring() + L"\" /S _?=" + folder.wstring()), gave_up);
    expect_files(shipped_database);
    EXPECT_EQ(user_text(registered_key, L"DisplayName"), product::title);
    EXPECT_TRUE(program.running());
}

TEST_F(Package, GoesWhereItIsTold) {
    ASSERT_EQ(install(L"now"), 0);
    fs::create_directories(other_folder);
    write_bytes(other_folder / L"Cheats.dat", added_game);
    ASSERT_EQ(install(L"now", L" /D=" + other_folder.wstring()), 0);
    EXPECT_EQ(bytes_of(other_folder / L"Cheats.dat"), added_game) << "a copy from the zip was there before";
    EXPECT_TRUE(holds(shortcut, (other_folder / L"Quillomat.exe").string()));

    run(L"\"" + file(L"Uninstall.exe").wstring() + L"\" /S");
    EXPECT_TRUE(wait_until([&] { return !fs::exists(folder); }));
    EXPECT_EQ(user_text(registered_key, L"InstallLocation"), other_folder.wstring()) << "this one is still installed";
    EXPECT_TRUE(fs::exists(shortcut));

    ASSERT_TRUE(uninstall());
    EXPECT_FALSE(fs::exists(shortcut));
    EXPECT_EQ(names_in(other_folder), std::set<std::wstring>{L"Cheats.dat"});
}

TEST(Zip, RunsWhereItIsUnpacked) {
    Program program(packages / L"any f\u00F6lder" / L"Quillomat");
    program.start();
    ASSERT_TRUE(program.reach_viewer());
    EXPECT_EQ(program.message(), L"");
    EXPECT_TRUE(wait_until([&] { return games_of(program.viewer()).size() >= 400; }));
    program.close();
    EXPECT_EQ(program.exit_code(), 0U);
}

}  // namespace
}  // namespace quillomat

int wmain(int count, wchar_t** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (count != 2) return 2;
    quillomat::packages = std::filesystem::absolute(arguments[1]);
    return RUN_ALL_TESTS();
}
