#pragma once

#include "controls/graphics.h"
#include "win/gdi.h"

namespace quillomat {

/// A bitmap that fills its bounds. The program's resources hold it for 96, 120, 144 and 192 dots per inch, each under
/// the number `resource` plus its resolution. Mouse events pass through to the window behind it.
class Backdrop : public Graphic {
  public:
    Backdrop(Container& container, int resource, Bounds bounds);

    void draw(HDC canvas) const override;
    bool takes_mouse() const override { return false; }
    void resolution_changed() override;

  private:
    int resource_;
    mutable GdiObject<HBITMAP> bitmap_;  // loaded by the first draw
};

}  // namespace quillomat
