#pragma once

#include "win/picture.h"

namespace quillomat {

/// How a folder is drawn.
enum class FolderState { Closed, Open };

/// The system's icon of a folder.
class FolderIcon {
  public:
    /// No icon.
    FolderIcon() = default;
    /// `size` is in pixels.
    FolderIcon(FolderState state, int size);

    /// Draws it with its upper left corner at a place, in pixels.
    void draw(HDC canvas, int left, int top) const;

  private:
    Icon icon_;
    int size_ = 0;
};

}  // namespace quillomat
