#include "win/errors.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(SystemErrors, ACodeOfNoNumberOfOursKeepsTheSystemsSentence) {
    const Error error = error_from_code(ERROR_INVALID_NAME);
    EXPECT_EQ(error.code(), ErrorCode::DeviceError);
    EXPECT_NE(error.description(), Error(ErrorCode::DeviceError).description());
    EXPECT_GT(error.description().back(), L' ');
}

TEST(SystemErrors, ACodeWithoutASentenceIsADeviceError) {
    constexpr DWORD unknown = 0x2FFFFFFF;
    for (const DWORD code : {DWORD{ERROR_SUCCESS}, unknown}) {
        EXPECT_EQ(error_from_code(code).description(), L"Device I/O error");
    }
}

}  // namespace
}  // namespace quillomat
