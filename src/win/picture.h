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

/// A picture of the program: an icon among its resources, drawn for several sizes.
class Picture {
  public:
    /// No picture.
    Picture() = default;
    explicit Picture(int resource) : resource_(resource) {}

    explicit operator bool() const { return resource_ != 0; }

    /// Whether it is the same one, and an order for looking it up.
    // NOLINTNEXTLINE(modernize-use-nullptr): it means the zero in the comparison that the compiler makes.
    friend auto operator<=>(const Picture&, const Picture&) = default;

    /// Draws it into `area`, in pixels, from the size drawn for it.
    void draw(HDC canvas, const RECT& area) const;
    /// Returns a square bitmap of 32 bits with premultiplied alpha, as menus blend it; a null handle if there is none.
    GdiObject<HBITMAP> bitmap(int pixels) const;
    /// An icon of it, as windows take it.
    Icon icon(int pixels) const;

  private:
    int resource_ = 0;
};

}  // namespace quillomat
