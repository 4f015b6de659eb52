#pragma once

#include <memory>
#include <type_traits>

#include "win/api.h"

namespace quillomat {

enum class FolderState { Closed, Open };

/// The system's own picture of a folder.
class FolderIcon {
  public:
    /// No picture.
    FolderIcon() = default;
    /// A picture that is drawn this large, in pixels.
    FolderIcon(FolderState state, int size);

    void draw(HDC canvas, int left, int top) const;

  private:
    struct Destroy {
        void operator()(HICON icon) const { DestroyIcon(icon); }
    };

    std::unique_ptr<std::remove_pointer_t<HICON>, Destroy> icon_;
    int size_ = 0;
};

}  // namespace quillomat
