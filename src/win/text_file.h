#pragma once

#include <string>
#include <string_view>

#include "win/handle.h"

namespace quillomat {

/// Returns true if there is a file (not a folder) at the path.
bool file_exists(const std::wstring& path);

/// "File number 1": the one slot through which the program opens its text files, which are in the system's code page.
/// A load that fails in the middle keeps it for the rest of the run; every later use then throws FileAlreadyOpen.
class TextFileSlot {
  public:
    /// Returns true while a file is open: during a load, and after one that failed.
    bool is_open() const { return static_cast<bool>(file_); }

    /// Throws `Error`: FileAlreadyOpen when the slot is in use, else what the system says (FileNotFound, PathNotFound,
    /// PermissionDenied, ...).
    void open_for_reading(const std::wstring& path);
    /// Reads and decodes the whole open file. Throws `Error`, with OutOfMemory for 2 GB and more; the slot stays open.
    std::wstring read_all();
    void close() { file_.close(); }

    /// Appends a text to a file, which is created if there is none. Exactly the text's bytes are written, in place, in
    /// one call; if that fails, the file is cut back to what it was. Two programs that append at once take turns.
    /// Throws `Error` as `open_for_reading` does, PermissionDenied if another program keeps the file for longer than
    /// half a second, DiskFull, or InvalidArgument for a character that the code page lacks.
    void append(const std::wstring& path, std::wstring_view text);
    /// Makes a text the whole content of a file, new or not; if `path` is a link, of the link's target. The old content
    /// stays until the new one is complete and on the disk; the old file's rights and attributes are kept. Throws as
    /// `append` does.
    void replace(const std::wstring& path, std::wstring_view text);

  private:
    /// Throws FileAlreadyOpen while the slot is in use.
    void check_free() const;
    void open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition);
    /// Opens a new file in the folder of `path`, under a name that no file has, and returns its path.
    std::wstring create_beside(const std::wstring& path);

    FileHandle file_;
};

}  // namespace quillomat
