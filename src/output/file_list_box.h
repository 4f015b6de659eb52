#pragma once

#include <string>
#include <vector>

#include "controls/list_box.h"

namespace quillomat {

/// Shows the files that have one extension.
class FileListBox : public ListBox {
  public:
    /// `extension` begins with its point.
    FileListBox(Container& container, Bounds bounds, std::wstring extension);

    /// Shows those of the files that have the extension.
    void show(const std::vector<std::wstring>& files);

  private:
    std::wstring extension_;
};

}  // namespace quillomat
