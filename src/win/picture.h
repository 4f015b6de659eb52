#pragma once

#include <compare>
#include <memory>
#include <type_traits>

#include "win/gdi.h"

namespace quillomat {

struct IconDestroyer {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
/// Owns an icon and destroys it.
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer>;

/// A picture of the program: an icon resource that holds images of several sizes.
class Picture {
  public:
    /// No picture.
    Picture() = default;
    explicit Picture(int resource) : resource_(resource) {}

    explicit operator bool() const { return resource_ != 0; }

    // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm about the zero in the generated comparisons.
    friend auto operator<=>(const Picture&, const Picture&) = default;

    /// Draws the picture into `area`, in pixels, using the image of the nearest size.
    void draw(HDC canvas, const RECT& area) const;
    /// Returns the picture as a square bitmap of 32 bits with premultiplied alpha, for menus. The handle is null
    /// if Windows cannot create the bitmap.
    GdiObject<HBITMAP> bitmap(int pixels) const;
    /// Returns the picture as a square icon; null if Windows cannot load it.
    Icon icon(int pixels) const;

  private:
    int resource_ = 0;
};

}  // namespace quillomat
