// The font list file and the figures of the progress window.

#include "text/font_list.h"

#include <gtest/gtest.h>

#include "text/font_collection.h"

namespace quillomat {
namespace {

using Names = std::vector<std::wstring>;

TEST(FontList, ReadsWhatCanNameAFont) {
    const std::wstring longest(longest_font_name, L'x');
    const struct {
        const char* what;
        std::wstring text;
        Names names;
    } cases[] = {
        {"as written", L"Arial\r\nTimes New Roman\r\n", {L"Arial", L"Times New Roman"}},
        {"an empty collection", L"\r\n", {}},
        {"other line ends, empty lines", L"\n\na\n\rb\r\r\n\nc", {L"a", L"b", L"c"}},
        {"too long", longest + L"\r\n" + longest + L"y\r\nz\r\n", {longest, L"z"}},
        {"control characters", std::wstring(L"a\0b\r\nc\td\r\n\x7f\r\n\x1a", 14) + L"\r\ne", {L"e"}},
    };
    for (const auto& [what, text, names] : cases) EXPECT_EQ(font_names(text), names) << what;

    std::wstring endless;
    for (std::size_t i = 0; i < 3 * most_listed_fonts; ++i) endless += L"x\n";
    EXPECT_EQ(font_names(endless).size(), most_listed_fonts);
}

TEST(FontList, WritesOneNameToALine) {
    EXPECT_EQ(font_list_text({}), L"\r\n");
    EXPECT_EQ(font_list_text({L"", L"Arial", L"Tahoma"}), L"Arial\r\nTahoma\r\n");
}

TEST(FontCollection, FillsTheBarWithoutPassingItsEnd) {
    const struct {
        int collected, count;
        CollectionProgress progress;
    } cases[] = {
        {0, 0, {0, 0}},
        {2, 3, {5850, 66}},
        {3, 3, {8775, 100}},
        {1999, 2000, {8770.6125, 99}},
        {100'000'000, 100'000'000, {8775, 100}},
    };
    for (const auto& [collected, count, progress] : cases) {
        EXPECT_EQ(collection_progress(collected, count), progress) << collected << " of " << count;
    }
}

TEST(FontCollection, StandsBelowTheViewerWhereThereIsRoom) {
    EXPECT_EQ(progress_window_top(10520, 900, 11520), 10620);
    EXPECT_EQ(progress_window_top(10521, 900, 11520), 10520);
}

}  // namespace
}  // namespace quillomat
