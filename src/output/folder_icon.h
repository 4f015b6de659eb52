#pragma once

#include "win/picture.h"

namespace quillomat {

/// What a folder looks like.
enum class FolderState { Closed, Open };

/// The system's own picture of a folder.
class FolderIcon {
  public:
    /// No picture.
    FolderIcon() = default;
    /// A picture that is drawn this large, in pixels.
    FolderIcon(FolderState state, int size);

    /// Draws it with its upper left corner at a place, in pixels.
    void draw(HDC canvas, int left, int top) const;

  private:
    Icon icon_;
    int size_ = 0;
};

}  // namespace quillomat
