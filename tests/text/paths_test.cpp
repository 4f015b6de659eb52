#include "text/paths.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(Paths, StepsLeadFromTheRootDown) {
    const struct {
        const wchar_t* path;
        std::vector<FolderStep> steps;
    } cases[] = {
        {L"C:", {{L"C:\\", L"C:\\"}}},
        {L"C:\\a b\\c\\", {{L"C:\\", L"C:\\"}, {L"C:\\a b", L"a b"}, {L"C:\\a b\\c", L"c"}}},
        {L"\\\\host\\share\\x", {{L"\\\\host\\share\\", L"\\\\host\\share\\"}, {L"\\\\host\\share\\x", L"x"}}},
        {L"\\\\host", {{L"\\\\host\\", L"\\\\host\\"}}},
    };
    for (const auto& [path, steps] : cases) EXPECT_EQ(folder_steps(path), steps) << testing::PrintToString(path);
}

}  // namespace
}  // namespace quillomat
