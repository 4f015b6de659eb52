#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "database/catalogue.h"
#include "support/decoded_text.h"
#include "support/upper_case.h"
#include "text/error.h"

namespace quillomat {
namespace {

std::string starter_database() {
    std::ifstream file(QUILLOMAT_STARTER_DATABASE, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t count_of(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

/// The database a new user starts with, checked for what the program relies on and for slips of whoever edits it.
class StarterDatabase : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_FALSE(bytes.empty()) << "no " QUILLOMAT_STARTER_DATABASE;
        catalogue.load(widened(bytes), [this](std::wstring_view name) { names.emplace_back(name); });
    }

    std::string bytes = starter_database();
    Catalogue catalogue;
    std::vector<std::wstring> names;
};

TEST_F(StarterDatabase, HoldsEveryRecordWhole) {
    const std::size_t name_lines = count_of("\r\n" + bytes, "\r\n$$$$$$$$$$$$$$$$$$$$ ");
    EXPECT_EQ(names.size(), name_lines);
    EXPECT_EQ(count_of(bytes, "$$$$$$$$$$"), 2 * name_lines) << "a marker that is too short, too long or misplaced";
    EXPECT_GE(names.size(), 150U);
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(catalogue.cheats(static_cast<int>(names.size())), L"") << "text behind the last name line";
}

TEST_F(StarterDatabase, IsPlainTextWithWholeLineEnds) {
    const std::size_t line_ends = count_of(bytes, "\r\n");
    const auto is_control = [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; };
    EXPECT_EQ(std::count_if(bytes.begin(), bytes.end(), is_control), 2 * static_cast<std::ptrdiff_t>(line_ends));
    EXPECT_EQ(bytes.find('\xC3'), std::string::npos) << "saved as UTF-8";
}

TEST_F(StarterDatabase, ListsTheGamesInAlphabeticalOrder) {
    std::wstring previous;
    for (const std::wstring& name : names) {
        std::wstring upper = name;
        upper_case(upper.data(), upper.size());
        ASSERT_FALSE(name.empty());
        const bool findable = (name[0] >= L'0' && name[0] <= L'9') || (name[0] >= L'A' && name[0] <= L'Z');
        EXPECT_TRUE(findable) << testing::PrintToString(name) << " is out of the alphabet bar's reach";
        EXPECT_FALSE(name.ends_with(L' ')) << testing::PrintToString(name);
        EXPECT_LT(previous, upper);
        previous = upper;
    }
}

}  // namespace
}  // namespace quillomat
