#pragma once

#include <string>
#include <vector>

#include "output/drop_down_list.h"

namespace quillomat {

/// A drop-down list of the system's drives.
class DriveListBox : public DropDownList {
  public:
    /// Lists the drives that exist now.
    DriveListBox(Container& container, Bounds bounds);

    /// Returns the root of the selected drive, such as "C:\"; empty if none is selected.
    std::wstring drive() const;
    /// Selects the drive of a path. Raises `on_change` if that is another drive. Does nothing if the drive is not in
    /// the list.
    void select_drive_of(const std::wstring& path);

  private:
    std::vector<std::wstring> roots_;
};

}  // namespace quillomat
