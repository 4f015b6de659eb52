#include "win/folders.h"

#include <algorithm>

#include "text/paths.h"
#include "win/com_apartment.h"
#include "win/errors.h"
// Needs <windows.h> before it.
#include <shellapi.h>

namespace quillomat {
namespace {

DriveKind kind_of(UINT type) {
    switch (type) {
        case DRIVE_FIXED:
            return DriveKind::Fixed;
        case DRIVE_CDROM:
            return DriveKind::Optical;
        case DRIVE_REMOTE:
            return DriveKind::Network;
        case DRIVE_RAMDISK:
            return DriveKind::Memory;
        default:
            // Includes drives of unknown type, such as a drive that has just been unplugged.
            return DriveKind::Removable;
    }
}

// Lets calls of this thread on an empty drive fail until the end of the scope. By default Windows would ask the user
// to insert a disk.
class QuietDrives {
  public:
    QuietDrives() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &former_); }
    ~QuietDrives() { SetThreadErrorMode(former_, nullptr); }
    QuietDrives(const QuietDrives&) = delete;
    QuietDrives& operator=(const QuietDrives&) = delete;

  private:
    DWORD former_ = 0;
};

// Owns the handle of a search through a folder and closes it.
class Search {
  public:
    Search(const std::wstring& pattern, WIN32_FIND_DATAW& found)
        : handle_(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH)) {}
    ~Search() {
        if (*this) FindClose(handle_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool next(WIN32_FIND_DATAW& found) const { return FindNextFileW(handle_, &found); }

  private:
    HANDLE handle_;
};

bool comes_before(const std::wstring& a, const std::wstring& b) {
    constexpr DWORD as_read = NORM_IGNORECASE | SORT_DIGITSASNUMBERS;
    return CompareStringEx(LOCALE_NAME_USER_DEFAULT, as_read, a.c_str(), static_cast<int>(a.size()), b.c_str(),
                           static_cast<int>(b.size()), nullptr, nullptr, 0) == CSTR_LESS_THAN;
}

}  // namespace

std::vector<Drive> drives() {
    const QuietDrives quiet;
    std::vector<Drive> found;
    const DWORD letters = GetLogicalDrives();
    for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
        if (!(letters >> (letter - L'A') & 1)) continue;
        Drive drive;
        drive.root = std::wstring(1, letter) + L":\\";
        drive.kind = kind_of(GetDriveTypeW(drive.root.c_str()));
        wchar_t label[MAX_PATH + 1]{};
        if (drive.kind == DriveKind::Fixed &&
            GetVolumeInformationW(drive.root.c_str(), label, MAX_PATH, nullptr, nullptr, nullptr, nullptr, 0)) {
            drive.label = label;
        }
        found.push_back(std::move(drive));
    }
    return found;
}

FolderContent list_folder(const std::wstring& path) {
    const QuietDrives quiet;
    FolderContent content;
    WIN32_FIND_DATAW found{};
    const Search search(path_in(path, L"*"), found);
    if (!search) {
        // Every other folder has an entry ".", but an empty root folder has none, so that nothing is found in it.
        const DWORD code = GetLastError();
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (code == ERROR_FILE_NOT_FOUND && attributes != INVALID_FILE_ATTRIBUTES) return content;
        throw error_from_code(code == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : code);
    }
    do {
        const std::wstring_view name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        if (found.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) continue;
        const bool is_folder = found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (is_folder) {
            content.folders.emplace_back(name);
        } else {
            content.files.emplace_back(name);
        }
    } while (search.next(found));
    // An incomplete list would look like a folder with nothing more in it.
    if (GetLastError() != ERROR_NO_MORE_FILES) throw_last_error();
    std::sort(content.folders.begin(), content.folders.end(), comes_before);
    std::sort(content.files.begin(), content.files.end(), comes_before);
    return content;
}

bool answers_at_once(const std::wstring& path) {
    const UINT type = GetDriveTypeW(folder_steps(path).front().path.c_str());
    return type == DRIVE_FIXED || type == DRIVE_RAMDISK;
}

Icon folder_icon(FolderState state, int size) {
    UINT flags = SHGFI_ICON | SHGFI_USEFILEATTRIBUTES;
    // Sizes above that of the small icon are scaled down from the large icon.
    flags |= size > GetSystemMetrics(SM_CXSMICON) ? SHGFI_LARGEICON : SHGFI_SMALLICON;
    if (state == FolderState::Open) flags |= SHGFI_OPENICON;
    const ComApartment apartment;
    SHFILEINFOW info{};
    // With SHGFI_USEFILEATTRIBUTES the shell uses only the attributes and accesses no disk; the name is a placeholder.
    SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info, flags);
    return Icon(info.hIcon);
}

std::wstring current_folder() {
    std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
    path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    return path;
}

}  // namespace quillomat
