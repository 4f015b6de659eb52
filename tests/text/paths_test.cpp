#include "text/paths.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(Paths, StepsLeadFromTheRootDown) {
    const struct {
        const wchar_t* path;
        std::vector<FolderStep> steps;
    } cases[] = {
        {L"C:\\", {{L"C:\\", L"C:\\"}}},
        {L"C:", {{L"C:\\", L"C:\\"}}},
        {L"C:\\Games", {{L"C:\\", L"C:\\"}, {L"C:\\Games", L"Games"}}},
        {L"C:\\a b\\c\\", {{L"C:\\", L"C:\\"}, {L"C:\\a b", L"a b"}, {L"C:\\a b\\c", L"c"}}},
        {L"\\\\host\\share", {{L"\\\\host\\share\\", L"\\\\host\\share\\"}}},
        {L"\\\\host\\share\\x", {{L"\\\\host\\share\\", L"\\\\host\\share\\"}, {L"\\\\host\\share\\x", L"x"}}},
        {L"\\\\host", {{L"\\\\host\\", L"\\\\host\\"}}},
    };
    for (const auto& [path, steps] : cases) EXPECT_EQ(folder_steps(path), steps) << testing::PrintToString(path);
}

TEST(Paths, OneSeparatorBetweenFolderAndName) {
    EXPECT_EQ(path_in(L"C:\\", L"a.txt"), L"C:\\a.txt");
    EXPECT_EQ(path_in(L"C:\\b", L"a.txt"), L"C:\\b\\a.txt");
}

TEST(Paths, AnExtensionIsTheEndOfTheNameInAnyCase) {
    const struct {
        const wchar_t* name;
        bool expected;
    } cases[] = {{L"a.txt", true},   {L"a.TxT", true}, {L".txt", true}, {L"a.txt.bak", false},
                 {L"a.txtx", false}, {L"txt", false},  {L"", false},    {L"a.text", false}};
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(has_extension(name, L".txt"), expected) << testing::PrintToString(name);
    }
}

}  // namespace
}  // namespace quillomat
