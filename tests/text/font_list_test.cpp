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
        {"no line break at the end", L"Arial\r\nTahoma", {L"Arial", L"Tahoma"}},
        {"file order, and twice", L"b\r\na\r\nb\r\n", {L"b", L"a", L"b"}},
        {"an empty collection", L"\r\n", {}},
        {"nothing", L"", {}},
        {"other line ends, empty lines", L"\n\na\n\rb\r\r\n\nc", {L"a", L"b", L"c"}},
        {"too long", longest + L"\r\n" + longest + L"y\r\nz\r\n", {longest, L"z"}},
        {"one line without an end", std::wstring(100'000, L'x'), {}},
        {"control characters", std::wstring(L"a\0b\r\nc\td\r\n\x7f\r\n\x1a", 14) + L"\r\ne", {L"e"}},
        {"ampersands and other letters", L"A & B\r\n\u4e2d\u6587", {L"A & B", L"\u4e2d\u6587"}},
    };
    for (const auto& [what, text, names] : cases) EXPECT_EQ(font_names(text), names) << what;

    std::wstring endless;
    for (std::size_t i = 0; i < 3 * most_listed_fonts; ++i) endless += L"x\n";
    EXPECT_EQ(font_names(endless).size(), most_listed_fonts);
}

TEST(FontList, WritesOneNameToALine) {
    const struct {
        Names names;
        std::wstring text;
    } cases[] = {
        {{}, L"\r\n"},
        {{L"Arial"}, L"Arial\r\n"},
        {{L"Arial", L"Tahoma"}, L"Arial\r\nTahoma\r\n"},
        {{L"", L"Arial"}, L"Arial\r\n"},
        {{L""}, L"\r\n"},
    };
    for (const auto& [names, text] : cases) EXPECT_EQ(font_list_text(names), text);
}

TEST(FontCollection, FillsTheBarWithoutPassingItsEnd) {
    const struct {
        int collected, count;
        CollectionProgress progress;
    } cases[] = {
        {0, 0, {0, 0}},
        {0, 1, {0, 0}},
        {1, 1, {8775, 100}},
        {1, 3, {2925, 33}},
        {2, 3, {5850, 66}},
        {3, 3, {8775, 100}},
        {29, 100, {2544.75, 29}},
        {58, 100, {5089.5, 58}},
        {1999, 2000, {8770.6125, 99}},
        {7, 7, {8775, 100}},
        {100'000'000, 100'000'000, {8775, 100}},
    };
    for (const auto& [collected, count, progress] : cases) {
        EXPECT_EQ(collection_progress(collected, count), progress) << collected << " of " << count;
    }
}

TEST(FontCollection, TellsHowFarItIs) {
    EXPECT_EQ(collection_caption(7, 12), L"Please wait... 7% Done, 12 seconds elapsed (Press F10 to cancel).");
}

TEST(FontCollection, StandsBelowTheViewerWhereThereIsRoom) {
    const struct {
        double viewer_bottom, height, screen_height, top;
    } cases[] = {
        {8000, 900, 11520, 8100},
        {10520, 900, 11520, 10620},
        {10521, 900, 11520, 10520},
        {12000, 900, 11520, 10520},
    };
    for (const auto& [viewer_bottom, height, screen_height, top] : cases) {
        EXPECT_EQ(progress_window_top(viewer_bottom, height, screen_height), top) << viewer_bottom;
    }
}

}  // namespace
}  // namespace quillomat
