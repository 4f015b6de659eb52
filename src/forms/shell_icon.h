#pragma once

#include <shellapi.h>

#include <memory>
#include <type_traits>

#include "win/api.h"

namespace quillomat {

/// One of the system's own pictures, such as that of a folder.
class ShellIcon {
  public:
    /// No picture.
    ShellIcon() = default;
    /// A picture that is drawn this large, in pixels.
    ShellIcon(SHSTOCKICONID which, int size);

    void draw(HDC canvas, int left, int top) const;

  private:
    struct Destroy {
        void operator()(HICON icon) const { DestroyIcon(icon); }
    };

    std::unique_ptr<std::remove_pointer_t<HICON>, Destroy> icon_;
    int size_ = 0;
};

}  // namespace quillomat
