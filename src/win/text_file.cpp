#include "win/text_file.h"

#include <memory>
#include <new>

#include "win/code_page.h"
#include "win/errors.h"

namespace quillomat {
namespace {

/// Bytes of the largest file that is read. No text is larger, and reading takes three times as much memory.
constexpr LONGLONG largest_file = (LONGLONG{1} << 31) - 1;

LONGLONG size_of(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size)) throw_last_error();
    return size.QuadPart;
}

/// In one call, so that a program that is ended meanwhile has written either nothing or everything.
void write_to_disk(HANDLE file, std::string_view bytes) {
    DWORD written = 0;
    if (!WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) throw_last_error();
    if (written != bytes.size()) throw Error(ErrorCode::DiskFull);
    // A disk behind a cache may refuse only now.
    if (!FlushFileBuffers(file)) throw_last_error();
}

void set_position(HANDLE file, LONGLONG position) {
    LARGE_INTEGER distance{};
    distance.QuadPart = position;
    if (!SetFilePointerEx(file, distance, nullptr, FILE_BEGIN)) throw_last_error();
}

/// A file that may not be changed stays as it is, even where a folder or an administrator's rights would allow it.
void check_changeable(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) {
        throw Error(ErrorCode::PermissionDenied);
    }
}

/// Closes the slot when a write ends, whichever way: only reading leaves it open.
class Closing {
  public:
    explicit Closing(FileHandle& file) : file_(file) {}
    ~Closing() { file_.close(); }
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;

  private:
    FileHandle& file_;
};

enum class AtClosing { Keep, Delete };

/// What the system does with a file as soon as it is closed, even if that is because the program was ended.
void set_fate(HANDLE file, AtClosing fate) {
    FILE_DISPOSITION_INFO info{fate == AtClosing::Delete};
    if (!SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info)) throw_last_error();
}

}  // namespace

bool file_exists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void TextFileSlot::open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) {
    if (is_open()) throw Error(ErrorCode::FileAlreadyOpen);
    file_ = FileHandle(CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file_) throw_last_error();
}

void TextFileSlot::open_for_reading(const std::wstring& path) {
    // The slot may stay open for long; that must not keep the user from mending the file.
    open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
}

DecodedText TextFileSlot::read_all() try {
    const LONGLONG file_size = size_of(file_.get());
    if (file_size > largest_file) {
        throw Error(ErrorCode::OutOfMemory, L"The file is too large: at most 2 GB can be read");
    }
    const auto size = static_cast<std::size_t>(file_size);
    const auto bytes = std::make_unique_for_overwrite<char[]>(size);
    std::size_t length = 0;
    while (length < size) {
        DWORD read = 0;
        const auto wanted = static_cast<DWORD>(size - length);
        if (!ReadFile(file_.get(), bytes.get() + length, wanted, &read, nullptr)) throw_last_error();
        if (read == 0) break;  // another program has shortened the file
        length += read;
    }
    return decode({bytes.get(), length});
} catch (const std::bad_alloc&) {
    throw Error(ErrorCode::OutOfMemory);
}

void TextFileSlot::append(const std::wstring& path, std::wstring_view text) {
    if (!file_exists(path)) return replace(path, text);
    const std::string bytes = encode(text);
    check_changeable(path);
    open(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    const Closing closing(file_);
    const LONGLONG old_size = size_of(file_.get());
    set_position(file_.get(), old_size);
    try {
        write_to_disk(file_.get(), bytes);
    } catch (const Error&) {
        set_position(file_.get(), old_size);
        SetEndOfFile(file_.get());
        throw;
    }
}

std::wstring TextFileSlot::open_new_file_beside(const std::wstring& path) {
    const std::wstring folder = path.substr(0, path.find_last_of(L"\\/") + 1);
    for (int number = 1;; ++number) {
        std::wstring name = folder + L"~quillomat" + std::to_wstring(number) + L".tmp";
        if (file_exists(name)) continue;
        open(name, GENERIC_WRITE | DELETE, 0, CREATE_NEW);
        return name;
    }
}

void TextFileSlot::replace(const std::wstring& path, std::wstring_view text) {
    const std::string bytes = encode(text);
    check_changeable(path);
    const std::wstring unfinished = open_new_file_beside(path);
    {
        const Closing closing(file_);
        set_fate(file_.get(), AtClosing::Delete);
        write_to_disk(file_.get(), bytes);
        set_fate(file_.get(), AtClosing::Keep);
    }
    if (!MoveFileExW(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const Error error = error_from_code(GetLastError());
        DeleteFileW(unfinished.c_str());
        throw error;
    }
}

}  // namespace quillomat
