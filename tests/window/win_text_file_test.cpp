#include "win/text_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>

#include "support/files.h"
#include "text/error.h"
#include "win/handle.h"

namespace quillomat {
namespace {

using namespace std::string_literals;

// The number of the error that something throws, if it throws one.
std::optional<ErrorCode> error_of(const std::function<void()>& something) {
    try {
        something();
        return std::nullopt;
    } catch (const Error& error) {
        return error.code();
    }
}

// A folder of its own for every test, where files are looked at byte by byte.
struct TextFile : testing::Test {
    std::wstring path(const wchar_t* name) const { return (folder_.path() / name).wstring(); }

    const TemporaryFolder folder_;
    const std::wstring file_ = path(L"a.txt");
    TextFileSlot slot_;
};

TEST_F(TextFile, ReadsTheWholeFileAndSaysWhyItCannotAndKeepsNobodyFromWriting) {
    folder_.write(file_, std::string(100'000, 'x') + "\r\n\0end"s);
    {
        const FileHandle lock(CreateFileW(file_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        for (const auto& [file, code] : {std::pair{path(L"none.txt"), ErrorCode::FileNotFound},
                                         {folder_.path().wstring(), ErrorCode::PermissionDenied},
                                         {file_, ErrorCode::PermissionDenied}}) {
            EXPECT_EQ(error_of([&] { slot_.open_for_reading(file); }), code) << testing::PrintToString(file);
        }
    }
    slot_.open_for_reading(file_);
    EXPECT_EQ(slot_.read_all(), std::wstring(100'000, L'x') + L"\r\n\0end"s);
    folder_.write(file_, "new");
    EXPECT_EQ(folder_.read(file_), "new");
    // Only the one slot is taken, not the file.
    EXPECT_EQ(error_of([&] { slot_.open_for_reading(file_); }), ErrorCode::FileAlreadyOpen);
}

TEST_F(TextFile, AppendingWritesInPlaceAndReplacingDoesNotAndNoOtherFileIsTouched) {
    const std::wstring taken = L"~quillomat-" + std::to_wstring(GetCurrentProcessId()) + L"-1.tmp";
    folder_.write(taken, "the user's");
    folder_.write(file_, "no line end");
    std::filesystem::create_hard_link(file_, path(L"link.txt"));
    slot_.append(file_, L" here\r\n");
    slot_.append(file_, L"");
    slot_.append(file_, L"last\r\n");
    EXPECT_EQ(folder_.read(L"link.txt"), "no line end here\r\nlast\r\n");
    slot_.replace(path(L"link.txt"), L"new");
    EXPECT_EQ(folder_.read(taken) + folder_.read(L"link.txt"), "the user'snew");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 3);
    TextFileSlot reader;
    reader.open_for_reading(file_);
    slot_.replace(file_, L"new\r\n");
    EXPECT_EQ(folder_.read(file_), "new\r\n");
    slot_.replace(file_, L"");
    EXPECT_EQ(folder_.read(file_), "");
    EXPECT_EQ(reader.read_all(), L"no line end here\r\nlast\r\n") << "never half of the old and half of the new";
}

TEST_F(TextFile, AFailureChangesNothing) {
    folder_.write(file_, "old\r\n");
    const auto expect_refused = [&](const std::wstring& path, const wchar_t* text, ErrorCode code) {
        for (const auto write : {&TextFileSlot::append, &TextFileSlot::replace}) {
            EXPECT_EQ(error_of([&] { (slot_.*write)(path, text); }), code);
            EXPECT_EQ(folder_.read(file_), "old\r\n");
            // Wine: ReplaceFile leaves an empty file of its own when it fails.
            const auto is_ours = [](const auto& entry) {
                return !entry.path().filename().wstring().starts_with(L"rf");
            };
            EXPECT_EQ(std::ranges::count_if(std::filesystem::directory_iterator(folder_.path()), is_ours), 1);
        }
    };
    // Half a pair is a character that no single-byte code page has, and no UTF-8 text either.
    for (const wchar_t* name : {L"a.txt", L"new.txt"}) {
        expect_refused(path(name), L"half \xD83D", ErrorCode::InvalidArgument);
    }
    expect_refused(path(L"none\\a.txt"), L"new", ErrorCode::PathNotFound);
    expect_refused(folder_.path().wstring(), L"new", ErrorCode::PermissionDenied);
    {
        // Another program that lets nobody write.
        const FileHandle lock(
            CreateFileW(file_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        expect_refused(file_, L"new", ErrorCode::PermissionDenied);
    }
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
    expect_refused(file_, L"new", ErrorCode::PermissionDenied);
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(slot_.is_open());
    slot_.open_for_reading(file_);
    expect_refused(file_, L"new", ErrorCode::FileAlreadyOpen);
    EXPECT_TRUE(slot_.is_open());
}

}  // namespace
}  // namespace quillomat
