// Starting the program with any database beside it and with any arguments: it reports what is wrong, stays usable and
// changes nothing.

#include <gtest/gtest.h>

#include "program/program.h"

namespace quillomat {
namespace {

using Games = std::vector<std::wstring>;

std::string record(const std::string& cheats, const std::string& name) {
    return cheats + "\r\n$$$$$$$$$$$$$$$$$$$$ " + name + "\r\n";
}

/// Starts the program, expects one message unless that is empty, then the games, and closes the program.
void expect_start(Program& program, const std::wstring& message, const Games& games) {
    program.start();
    ASSERT_TRUE(program.reach_viewer());
    EXPECT_EQ(program.message(), message);
    ASSERT_TRUE(message.empty() || program.dismiss_message());
    EXPECT_TRUE(wait_until([&] { return program.viewer() && games_of(program.viewer()) == games; }));
    program.close();
    EXPECT_EQ(program.exit_code(), 0U);
}

TEST(Start, ShowsWhatItCanReadAndChangesNothing) {
    Program program;
    expect_start(program, L"Error!: File not found\r\n" + program.database().wstring(), {});
    EXPECT_FALSE(std::filesystem::exists(program.database())) << "reading makes no file";
    const std::pair<std::string, std::wstring> games[] = {
        {record(std::string("Gru\xDF\0\x80", 6), "\xC9t\xE9"), L"\u00C9t\u00E9"},
        {record(std::string(50 << 20, 'x'), "Long"), L"Long"},
    };
    for (const auto& [bytes, game] : games) {
        program.write_database(bytes);
        expect_start(program, L"", {game});
        EXPECT_TRUE(program.read_database() == bytes);
    }
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

}  // namespace
}  // namespace quillomat

int wmain(int count, wchar_t** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (count != 2) return 2;
    quillomat::Program::executable = std::filesystem::absolute(arguments[1]);
    return RUN_ALL_TESTS();
}
