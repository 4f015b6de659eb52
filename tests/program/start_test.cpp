// The program as it is handed out, started with a question.

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
