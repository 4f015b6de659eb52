#include "win/text_file.h"

#include <algorithm>
#include <memory>

#include "win/code_page.h"
#include "win/errors.h"

namespace quillomat {
namespace {

// The system reads and writes at most this many bytes at once.
constexpr std::size_t most_at_once = 1u << 30;

std::size_t size_of(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size)) throw_last_error();
    return static_cast<std::size_t>(size.QuadPart);
}

void write_whole(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), most_at_once));
        if (!WriteFile(file, bytes.data(), piece, &written, nullptr)) throw_last_error();
        if (written == 0) throw Error(ErrorCode::DiskFull);
        bytes.remove_prefix(written);
    }
    if (!FlushFileBuffers(file)) throw_last_error();
}

// Closes the slot at the end of a write, whichever way it ends: only reading leaves it open.
class Closing {
  public:
    explicit Closing(FileHandle& file) : file_(file) {}
    ~Closing() { file_.close(); }
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;

  private:
    FileHandle& file_;
};

}  // namespace

bool file_exists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void TextFileSlot::open(const std::wstring& path, DWORD access, DWORD share, DWORD creation) {
    if (is_open()) throw Error(ErrorCode::FileAlreadyOpen);
    file_ = FileHandle(CreateFileW(path.c_str(), access, share, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file_) throw_last_error();
}

void TextFileSlot::open_for_reading(const std::wstring& path) {
    open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
}

DecodedText TextFileSlot::read_all() {
    const std::size_t size = size_of(file_.get());
    const auto bytes = std::make_unique_for_overwrite<char[]>(std::max<std::size_t>(size, 1));
    std::size_t length = 0;
    while (length < size) {
        DWORD read = 0;
        const auto piece = static_cast<DWORD>(std::min(size - length, most_at_once));
        if (!ReadFile(file_.get(), bytes.get() + length, piece, &read, nullptr)) throw_last_error();
        if (read == 0) break;
        length += read;
    }
    return decode({bytes.get(), length});
}

void TextFileSlot::append(const std::wstring& path, std::wstring_view text) {
    const std::string bytes = encode(text);
    open(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    const Closing closing(file_);
    LARGE_INTEGER old_end{};
    old_end.QuadPart = static_cast<LONGLONG>(size_of(file_.get()));
    if (!SetFilePointerEx(file_.get(), old_end, nullptr, FILE_BEGIN)) throw_last_error();
    try {
        write_whole(file_.get(), bytes);
    } catch (const Error&) {
        SetFilePointerEx(file_.get(), old_end, nullptr, FILE_BEGIN);
        SetEndOfFile(file_.get());
        throw;
    }
}

void TextFileSlot::replace(const std::wstring& path, std::wstring_view text) {
    const std::string bytes = encode(text);
    // A file that may not be changed is not replaced either, although its folder would allow it.
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) {
        throw Error(ErrorCode::PermissionDenied);
    }
    const std::wstring unfinished = path + L".new";
    open(unfinished, GENERIC_WRITE, 0, CREATE_ALWAYS);
    try {
        const Closing closing(file_);
        write_whole(file_.get(), bytes);
    } catch (const Error&) {
        DeleteFileW(unfinished.c_str());
        throw;
    }
    if (!MoveFileExW(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const Error error = error_from_code(GetLastError());
        DeleteFileW(unfinished.c_str());
        throw error;
    }
}

}  // namespace quillomat
