// Whatever lies beside the program as its database: it starts, says what is wrong, stays usable and changes nothing.

#include <gtest/gtest.h>

#include <random>

#include "program/program.h"

namespace quillomat {
namespace {

constexpr char marker[] = "$$$$$$$$$$$$$$$$$$$$ ";

std::string record(const std::string& cheats, const std::string& name) {
    return cheats + "\r\n" + marker + name + "\r\n";
}

void close_and_check(Program& program) {
    program.close();
    EXPECT_EQ(program.exit_code(), 0U);
}

struct Database {
    std::string bytes;
    std::vector<std::wstring> games;
    /// Not looked at when empty.
    std::wstring cheats_of_first;
    std::wstring message;
};

std::string any_bytes() {
    std::mt19937 random(20100521);
    std::string bytes(1 << 20, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
    return bytes;
}

std::vector<Database> databases() {
    return {
        {any_bytes(), {}, L"", L""},
        {record(std::string("Gru\xDF\0\x80", 6), "\xC9t\xE9"), {L"\u00C9t\u00E9"}, L"Gru\u00DF \u20AC", L""},
        {record(std::string(50 << 20, 'x'), "Long"), {L"Long"}, L"", L""},
        {record("a", "Doom") + "$$$$$$$$$$$$$$$$$$$$\r\n" + record("b", "Quake"),
         {L"Doom"},
         L"a",
         L"Error!: Invalid procedure call or argument"},
    };
}

class StartWith : public testing::TestWithParam<Database> {};

TEST_P(StartWith, ShowsWhatItCanReadAndChangesNothing) {
    const Database& database = GetParam();
    Program program;
    program.write_database(database.bytes);
    program.start();
    ASSERT_TRUE(program.reach_viewer());
    EXPECT_EQ(program.message(), database.message);
    if (!database.message.empty()) {
        ASSERT_TRUE(program.dismiss_message());
        ASSERT_TRUE(program.reach_viewer());
    }
    EXPECT_EQ(games_of(program.viewer()), database.games);
    if (!database.cheats_of_first.empty()) {
        EXPECT_TRUE(cheats_of(program.viewer(), 0) == database.cheats_of_first);
    }
    close_and_check(program);
    EXPECT_TRUE(program.read_database() == database.bytes);
}

INSTANTIATE_TEST_SUITE_P(Databases, StartWith, testing::ValuesIn(databases()));

/// A database that cannot be read: the program says so once, and opens without games.
void expect_opens_empty(Program& program, const std::wstring& message) {
    program.start();
    ASSERT_TRUE(program.reach_viewer());
    EXPECT_EQ(program.message(), message);
    ASSERT_TRUE(program.dismiss_message());
    ASSERT_TRUE(program.reach_viewer());
    EXPECT_TRUE(games_of(program.viewer()).empty());
    close_and_check(program);
}

TEST(Start, WithoutADatabase) {
    Program program;
    expect_opens_empty(program, L"Error!: File not found");
    EXPECT_FALSE(std::filesystem::exists(program.database())) << "reading makes no file";
}

TEST(Start, WithALockedDatabase) {
    Program program;
    program.write_database(record("a", "Doom"));
    const HANDLE lock = CreateFileW(program.database().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    expect_opens_empty(program, L"Error!: Permission denied");
    CloseHandle(lock);
    EXPECT_EQ(program.read_database(), record("a", "Doom"));
}

TEST(Start, WithADatabaseOfOneGigabyte) {
    Program program;
    program.write_database(record("a", "Doom"));
    std::filesystem::resize_file(program.database(), std::uintmax_t{1} << 30);
    program.start();
    ASSERT_TRUE(program.reach_viewer());
    if (!program.message().empty()) {
        // Less memory than the file needs is no fault of the program.
        EXPECT_EQ(program.message(), L"Error!: Out of memory");
        ASSERT_TRUE(program.dismiss_message());
    } else {
        EXPECT_EQ(games_of(program.viewer()), std::vector<std::wstring>{L"Doom"});
    }
    close_and_check(program);
    EXPECT_EQ(std::filesystem::file_size(program.database()), std::uintmax_t{1} << 30);
}

}  // namespace
}  // namespace quillomat

int wmain(int count, wchar_t** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (count != 2) {
        std::fputs("usage: program_tests PROGRAM\n", stderr);
        return 2;
    }
    wchar_t path[MAX_PATH]{};
    GetFullPathNameW(arguments[1], MAX_PATH, path, nullptr);
    quillomat::Program::executable = path;
    return RUN_ALL_TESTS();
}
