#include "win/text_file.h"

#include <functional>
#include <memory>
#include <new>

#include "win/code_page.h"
#include "win/errors.h"

namespace quillomat {
namespace {

// The largest file that is read, in bytes. Windows decodes at most as many bytes as an int counts.
constexpr LONGLONG largest_file = (LONGLONG{1} << 31) - 1;

LONGLONG size_of(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size)) throw_last_error();
    return size.QuadPart;
}

// Writes the bytes with one call and waits until they are on the disk: behind a cache, writing can fail as late as
// that.
void write_flushed(HANDLE file, std::string_view bytes) {
    DWORD written = 0;
    if (!WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) throw_last_error();
    if (written != bytes.size()) throw Error(ErrorCode::DiskFull);
    if (!FlushFileBuffers(file)) throw_last_error();
}

bool seek(HANDLE file, LONGLONG position) {
    LARGE_INTEGER distance{};
    distance.QuadPart = position;
    return SetFilePointerEx(file, distance, nullptr, FILE_BEGIN) != FALSE;
}

// Throws PermissionDenied for a read-only file or a folder, even if the rights to the folder above allow replacing it.
void check_changeable(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    if (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) throw Error(ErrorCode::PermissionDenied);
}

// RAII guard that closes the slot after a write, even a failed one: only reading leaves the slot open.
class SlotCloser {
  public:
    explicit SlotCloser(FileHandle& file) : file_(file) {}
    ~SlotCloser() { file_.close(); }
    SlotCloser(const SlotCloser&) = delete;
    SlotCloser& operator=(const SlotCloser&) = delete;

  private:
    FileHandle& file_;
};

enum class AtClosing { Keep, Delete };

// Sets what Windows does with a file when its handle is closed, even if the process is killed.
void set_fate(HANDLE file, AtClosing fate) {
    FILE_DISPOSITION_INFO info{fate == AtClosing::Delete};
    if (!SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info)) throw_last_error();
}

// Repeats a system call for up to half a second while another program has the file open: a second run of this program
// that adds a game, a virus scanner, an indexer. Returns the code of the last failure, or ERROR_SUCCESS.
DWORD wait_for_file(const std::function<bool()>& call) {
    constexpr int attempts = 50;
    constexpr DWORD milliseconds_between = 10;
    DWORD code = ERROR_SUCCESS;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (call()) return ERROR_SUCCESS;
        code = GetLastError();
        if (code != ERROR_SHARING_VIOLATION && code != ERROR_UNABLE_TO_REMOVE_REPLACED) return code;
        Sleep(milliseconds_between);
    }
    return code;
}

// Returns the path of the file itself, with links resolved, or `path` if there is no such file or Windows cannot tell.
std::wstring link_target(const std::wstring& path) {
    const FileHandle file(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0,
                                      nullptr));
    if (!file) return path;
    std::wstring target(GetFinalPathNameByHandleW(file.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    const DWORD length =
        GetFinalPathNameByHandleW(file.get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED);
    // The drivers of some RAM disks and network drives do not support the call.
    if (length == 0 || length >= target.size()) return path;
    target.resize(length);
    return target;
}

// Replaces a file with a new one, which takes over the rights, attributes and times of the old one.
void put_in_place(const std::wstring& new_file, const std::wstring& path) {
    DWORD code = wait_for_file([&] {
        return ReplaceFileW(path.c_str(), new_file.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                            nullptr) != 0;
    });
    // There was no old file, or ReplaceFile has removed it and then failed to move the new one.
    if (code == ERROR_FILE_NOT_FOUND || code == ERROR_UNABLE_TO_MOVE_REPLACEMENT) {
        code = wait_for_file([&] {
            // Replaces as well, because another program may have created a file meanwhile.
            return MoveFileExW(new_file.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        });
    }
    if (code != ERROR_SUCCESS) throw error_from_code(code);
}

}  // namespace

bool file_exists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void TextFileSlot::check_free() const {
    if (is_open()) throw Error(ErrorCode::FileAlreadyOpen);
}

void TextFileSlot::open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) {
    check_free();
    const DWORD code = wait_for_file([&] {
        file_ =
            FileHandle(CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
        return is_open();
    });
    if (code != ERROR_SUCCESS) throw error_from_code(code);
}

void TextFileSlot::open_for_reading(const std::wstring& path) {
    // The slot may stay open for long. Share everything, so that the user can still repair the file.
    open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
}

std::wstring TextFileSlot::read_all() try {
    const LONGLONG size = size_of(file_.get());
    if (size > largest_file) throw Error(ErrorCode::OutOfMemory, L"The file is too large: at most 2 GB can be read");
    const auto bytes = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(size));
    DWORD read = 0;
    if (!ReadFile(file_.get(), bytes.get(), static_cast<DWORD>(size), &read, nullptr)) throw_last_error();
    return decode({bytes.get(), read});
} catch (const std::bad_alloc&) {
    throw Error(ErrorCode::OutOfMemory);
}

void TextFileSlot::append(const std::wstring& path, std::wstring_view text) {
    const std::string bytes = encode(text);
    check_changeable(path);
    // Deny others writing, so that cutting the file back after a failure removes only this text.
    open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    const SlotCloser closer(file_);
    const LONGLONG old_size = size_of(file_.get());
    try {
        if (!seek(file_.get(), old_size)) throw_last_error();
        write_flushed(file_.get(), bytes);
    } catch (const Error&) {
        if (seek(file_.get(), old_size)) SetEndOfFile(file_.get());
        throw;
    }
}

void TextFileSlot::replace(const std::wstring& path, std::wstring_view text) {
    const std::string bytes = encode(text);
    check_changeable(path);
    const std::wstring target = link_target(path);
    const std::wstring new_file = create_beside(target);
    try {
        {
            const SlotCloser closer(file_);
            // Until the file is complete, Windows deletes it when its handle is closed.
            set_fate(file_.get(), AtClosing::Delete);
            write_flushed(file_.get(), bytes);
            set_fate(file_.get(), AtClosing::Keep);
        }
        put_in_place(new_file, target);
    } catch (const Error&) {
        DeleteFileW(new_file.c_str());
        throw;
    }
}

std::wstring TextFileSlot::create_beside(const std::wstring& path) {
    check_free();
    const std::wstring stem =
        path.substr(0, path.find_last_of(L"\\/") + 1) + L"~quillomat-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    for (int number = 1;; ++number) {
        std::wstring new_file = stem + std::to_wstring(number) + L".tmp";
        file_ = FileHandle(CreateFileW(new_file.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
        if (is_open()) return new_file;
        if (GetLastError() != ERROR_FILE_EXISTS) throw_last_error();
    }
}

}  // namespace quillomat
