#pragma once

#include <string>
#include <string_view>

#include "database/catalogue.h"
#include "win/handle.h"

namespace quillomat {

/// Whether there is a file (not a folder) at a path.
bool file_exists(const std::wstring& path);

/// "File number 1": the one slot through which the program opens its text files, in the system's code page. A load that
/// fails in the middle keeps it open for the rest of the run, and every later use then fails with FileAlreadyOpen.
class TextFileSlot {
  public:
    bool is_open() const { return static_cast<bool>(file_); }

    /// Throws `Error`: FileAlreadyOpen when the slot is in use, else what the system says (FileNotFound, PathNotFound,
    /// PermissionDenied, ...).
    void open_for_reading(const std::wstring& path);
    /// The whole file, from its beginning. Throws `Error` and leaves the slot open.
    DecodedText read_all();
    void close() { file_.close(); }

    /// Adds a text to the end of a file, which is made if there is none. All or nothing: what cannot be written whole
    /// is cut off again. Throws `Error` as opening does, or InvalidArgument for a character the code page does not
    /// have.
    void append(const std::wstring& path, std::wstring_view text);
    /// Makes a text the whole content of a file. All or nothing: the file is the old one or the new one at any moment.
    /// Throws as `append` does.
    void replace(const std::wstring& path, std::wstring_view text);

  private:
    void open(const std::wstring& path, DWORD access, DWORD share, DWORD creation);

    FileHandle file_;
};

}  // namespace quillomat
