#pragma once

#include <string>
#include <string_view>

#include "database/catalogue.h"
#include "win/handle.h"

namespace quillomat {

/// Whether there is a file (not a folder) at a path.
bool file_exists(const std::wstring& path);

/// "File number 1": the one slot through which the program opens its text files, which are in the system's code page.
/// A load that fails in the middle keeps it for the rest of the run; every later use then throws FileAlreadyOpen.
class TextFileSlot {
  public:
    /// Whether a file is open, by a load that goes on or has failed.
    bool is_open() const { return static_cast<bool>(file_); }

    /// Throws `Error`: FileAlreadyOpen when the slot is in use, else what the system says (FileNotFound, PathNotFound,
    /// PermissionDenied, ...).
    void open_for_reading(const std::wstring& path);
    /// The whole file that is open. Throws `Error`, OutOfMemory for one of 2 GB and more, and leaves the slot open.
    DecodedText read_all();
    void close() { file_.close(); }

    /// Adds a text to the end of a file, which is made if there is none; nothing is put between the two. All or
    /// nothing: at any moment, even if the program is ended or the power fails, the file has its old bytes or all of
    /// the new ones behind them. Throws `Error` as `open_for_reading` does, DiskFull, or InvalidArgument for a
    /// character the code page lacks.
    void append(const std::wstring& path, std::wstring_view text);
    /// Makes a text the whole content of a file, new or not. All or nothing: at any moment the file is the old one or
    /// the new one. Throws as `append` does.
    void replace(const std::wstring& path, std::wstring_view text);

  private:
    enum class OldContent { Keep, Forget };

    void open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition);
    /// Writes a new file beside the one at `path` and has it take that one's place.
    void write(const std::wstring& path, std::string_view bytes, OldContent old_content);

    FileHandle file_;
};

}  // namespace quillomat
