#pragma once

#include <string>
#include <vector>

#include "output/drop_down_list.h"

namespace quillomat {

/// Lets the user choose one of the system's drives.
class DriveListBox : public DropDownList {
  public:
    /// Lists the drives that exist now.
    DriveListBox(Container& container, Bounds bounds);

    /// The root of the selected drive, such as "C:\"; empty when none is selected.
    std::wstring drive() const;
    /// Selects the drive of a path, and raises the change if that is another drive. Does nothing if no drive of the
    /// list has the path.
    void select_drive_of(const std::wstring& path);

  private:
    std::vector<std::wstring> roots_;
};

}  // namespace quillomat
