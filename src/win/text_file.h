#pragma once

#include <string>
#include <string_view>

#include "win/handle.h"

namespace quillomat {

/// Returns true if there is a file (not a folder) at the path.
bool file_exists(const std::wstring& path);

/// "File number 1": the only slot through which the program opens its text files, which are in the system's code page.
/// If a load fails after opening the file, the slot stays open for the rest of the run, and every later use throws
/// FileAlreadyOpen.
class TextFileSlot {
  public:
    /// Returns true while a file is open: during a load, and after one that failed.
    bool is_open() const { return static_cast<bool>(file_); }

    /// Throws `Error`: FileAlreadyOpen if the slot is in use, or the reason that Windows gives (FileNotFound,
    /// PathNotFound, PermissionDenied, ...).
    void open_for_reading(const std::wstring& path);
    /// Reads and decodes the whole open file. Throws `Error`, with OutOfMemory for 2 GB and more; the slot stays open.
    std::wstring read_all();
    void close() { file_.close(); }

    /// Appends a text to a file, which is created if there is none. Exactly the text's bytes are written, in place, in
    /// one call; if that fails, the file is cut back to what it was. Two programs that append at once take turns.
    /// Throws `Error` as `open_for_reading` does, PermissionDenied if another program keeps the file for longer than
    /// half a second, DiskFull, or InvalidArgument for a character that the code page lacks.
    void append(const std::wstring& path, std::wstring_view text);
    /// Replaces the content of a file with a text, or creates the file. If `path` is a link, this applies to its
    /// target. The old content stays until the new one is complete and on the disk; the file's rights and attributes
    /// are kept. Throws as `append` does.
    void replace(const std::wstring& path, std::wstring_view text);

  private:
    /// Throws FileAlreadyOpen while the slot is in use.
    void check_free() const;
    void open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition);
    /// Creates a file with an unused name in the folder of `path`, opens it and returns its path.
    std::wstring create_beside(const std::wstring& path);

    FileHandle file_;
};

}  // namespace quillomat
