#pragma once

#include <string>

#include "controls/list_box.h"

namespace quillomat {

/// Shows the files of a folder that have one extension.
class FileListBox : public ListBox {
  public:
    /// `extension` begins with its point.
    FileListBox(Container& container, Bounds bounds, std::wstring extension);

    /// Shows the files of a folder. Throws `Error` for one that cannot be looked into, and shows none.
    void set_path(const std::wstring& path);

  private:
    std::wstring extension_;
};

}  // namespace quillomat
