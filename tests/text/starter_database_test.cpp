#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "database/catalogue.h"
#include "support/files.h"
#include "support/western_text.h"
#include "text/error.h"
#include "text/shortened_name.h"

namespace quillomat {
namespace {

std::size_t count_of(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

// The database a new user starts with, checked for what the program relies on and for slips of whoever edits it.
TEST(StarterDatabase, HoldsEveryRecordWholeAndInOrder) {
    const std::string bytes = bytes_of(QUILLOMAT_STARTER_DATABASE);
    std::vector<std::wstring> names;
    Catalogue catalogue{upper_case};
    catalogue.load(widened(bytes), [&](std::wstring_view name) { names.emplace_back(name); });
    EXPECT_GE(names.size(), 400U);
    EXPECT_EQ(names.size(), count_of("\r\n" + bytes, "\r\n$$$$$$$$$$$$$$$$$$$$ "));
    EXPECT_EQ(count_of(bytes, "$$$$$$$$$$"), 2 * names.size()) << "a marker that is too short, too long or misplaced";
    EXPECT_EQ(catalogue.cheats(static_cast<int>(names.size())), L"") << "text behind the last name line";

    const auto is_control = [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; };
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(bytes, is_control)), 2 * count_of(bytes, "\r\n"));
    EXPECT_EQ(bytes.find('\xC3'), std::string::npos) << "saved as UTF-8";

    // As many characters as the list of games has room for at least.
    const auto fits = [](const std::wstring& text) { return text.size() <= 24; };
    std::set<std::wstring> shown;
    for (const std::wstring& name : names) shown.insert(shortened_name(name, fits));
    EXPECT_EQ(shown.size(), names.size()) << "names that look alike in the list";

    std::wstring previous;
    for (const std::wstring& name : names) {
        SCOPED_TRACE(testing::PrintToString(name));
        std::wstring upper = name;
        upper_case(upper.data(), upper.size());
        EXPECT_LT(std::exchange(previous, upper), upper);
        const bool findable = (name[0] >= L'0' && name[0] <= L'9') || (name[0] >= L'A' && name[0] <= L'Z');
        EXPECT_TRUE(findable) << "out of the alphabet bar's reach";
        EXPECT_FALSE(name.ends_with(L' '));
        EXPECT_NE(catalogue.cheats(static_cast<int>(&name - names.data())), L"");
    }
}

}  // namespace
}  // namespace quillomat
