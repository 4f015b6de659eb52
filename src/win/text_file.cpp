#include "win/text_file.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

#include "win/code_page.h"
#include "win/errors.h"

namespace quillomat {
namespace {

/// Bytes of the largest file that is read. No text is larger, and its characters take twice as much memory.
constexpr LONGLONG largest_file = (LONGLONG{1} << 31) - 1;

/// Bytes that are read at once.
constexpr DWORD block_size = 1 << 18;

LONGLONG size_of(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size)) throw_last_error();
    return size.QuadPart;
}

void write_all(HANDLE file, std::string_view bytes) {
    DWORD written = 0;
    if (!WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) throw_last_error();
    if (written != bytes.size()) throw Error(ErrorCode::DiskFull);
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

/// The name under which a file is written until it is complete. One that a program which was ended has left behind is
/// written over.
std::wstring unfinished_file_beside(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L"\\/") + 1) + L"~quillomat.tmp";
}

/// Adds the bytes of another file, which nobody may change meanwhile.
void copy_content(HANDLE target, const std::wstring& source_path) {
    const FileHandle source(CreateFileW(source_path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!source) throw_last_error();
    const auto block = std::make_unique_for_overwrite<char[]>(block_size);
    for (;;) {
        DWORD read = 0;
        if (!ReadFile(source.get(), block.get(), block_size, &read, nullptr)) throw_last_error();
        if (read == 0) return;
        write_all(target, {block.get(), read});
    }
}

/// Gives an open file the name of another one, whose place it takes in one step.
void take_place(HANDLE file, const std::wstring& path) {
    const std::size_t name_size = path.size() * sizeof(wchar_t);
    const std::size_t size = sizeof(FILE_RENAME_INFO) + name_size;
    const auto buffer = std::make_unique<std::byte[]>(size);
    auto& info = *new (buffer.get()) FILE_RENAME_INFO{};
    info.ReplaceIfExists = TRUE;
    info.FileNameLength = static_cast<DWORD>(name_size);
    path.copy(info.FileName, path.size());
    // A virus scanner or an indexer looks into every file that changes, and nobody can take its place meanwhile.
    constexpr int attempts = 10;
    constexpr DWORD milliseconds_between = 50;
    for (int attempt = 1; !SetFileInformationByHandle(file, FileRenameInfo, &info, static_cast<DWORD>(size));
         ++attempt) {
        const DWORD code = GetLastError();
        const bool in_use = code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION;
        if (!in_use || attempt == attempts) throw error_from_code(code);
        Sleep(milliseconds_between);
    }
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
    auto left = static_cast<std::size_t>(file_size);
    Decoder decoder(left);
    // A block at a time: the whole file in memory beside its text would cost more time than decoding it.
    const auto block = std::make_unique_for_overwrite<char[]>(block_size);
    std::size_t length = 0;  // of what is in the block
    for (;;) {
        DWORD read = 0;
        const auto wanted = static_cast<DWORD>(std::min<std::size_t>(left, block_size - length));
        if (!ReadFile(file_.get(), block.get() + length, wanted, &read, nullptr)) throw_last_error();
        length += read;
        left -= read;
        // The file has come to its end, or another program has shortened it.
        if (left == 0 || read == 0) return decoder.finish({block.get(), length});
        const std::size_t decoded = decoder.add({block.get(), length});
        std::copy(block.get() + decoded, block.get() + length, block.get());
        length -= decoded;
    }
} catch (const std::bad_alloc&) {
    throw Error(ErrorCode::OutOfMemory);
}

void TextFileSlot::append(const std::wstring& path, std::wstring_view text) {
    write(path, encode(text), file_exists(path) ? OldContent::Keep : OldContent::Forget);
}

void TextFileSlot::replace(const std::wstring& path, std::wstring_view text) {
    write(path, encode(text), OldContent::Forget);
}

void TextFileSlot::write(const std::wstring& path, std::string_view bytes, OldContent old_content) {
    check_changeable(path);
    // Shared with nobody: a second run of the program that writes at the same moment is refused, and neither loses what
    // the other one adds.
    open(unfinished_file_beside(path), GENERIC_WRITE | DELETE, 0, CREATE_ALWAYS);
    const Closing closing(file_);
    set_fate(file_.get(), AtClosing::Delete);
    if (old_content == OldContent::Keep) copy_content(file_.get(), path);
    write_all(file_.get(), bytes);
    // A disk behind a cache may refuse only now; and the new file must not lose its content with the power after it has
    // taken the place of the old one.
    if (!FlushFileBuffers(file_.get())) throw_last_error();
    set_fate(file_.get(), AtClosing::Keep);
    try {
        take_place(file_.get(), path);
    } catch (const Error&) {
        set_fate(file_.get(), AtClosing::Delete);
        throw;
    }
}

}  // namespace quillomat
