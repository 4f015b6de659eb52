#pragma once

#include <memory>
#include <type_traits>
#include <utility>

#include "win/api.h"
#include "win/colour.h"

namespace quillomat {

/// Owns a GDI object (brush, pen, font, bitmap, region) and deletes it.
template <class Handle>
class GdiObject {
  public:
    GdiObject() = default;
    explicit GdiObject(Handle handle) : handle_(handle) {}
    GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    GdiObject& operator=(GdiObject&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~GdiObject() {
        if (handle_) DeleteObject(handle_);
    }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

  private:
    Handle handle_ = nullptr;
};

/// A font of the system, which is deleted with its last holder.
using Font = std::shared_ptr<std::remove_pointer_t<HFONT>>;

/// Selects an object into a device context and puts the former one back at the end of the scope.
class Selection {
  public:
    Selection(HDC canvas, HGDIOBJ object) : canvas_(canvas), former_(SelectObject(canvas, object)) {}
    ~Selection() { SelectObject(canvas_, former_); }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

  private:
    HDC canvas_;
    HGDIOBJ former_;
};

/// A device context in memory, for drawing on a bitmap that is selected into it.
class MemoryCanvas {
  public:
    /// `like` is what it is to be compatible with, or null for the screen.
    explicit MemoryCanvas(HDC like) : canvas_(CreateCompatibleDC(like)) {}
    ~MemoryCanvas() { DeleteDC(canvas_); }
    MemoryCanvas(const MemoryCanvas&) = delete;
    MemoryCanvas& operator=(const MemoryCanvas&) = delete;

    HDC get() const { return canvas_; }

  private:
    HDC canvas_;
};

/// The device context of a window, borrowed for measuring.
class WindowCanvas {
  public:
    /// `window` may be null for the screen.
    explicit WindowCanvas(HWND window) : window_(window), canvas_(GetDC(window)) {}
    ~WindowCanvas() { ReleaseDC(window_, canvas_); }
    WindowCanvas(const WindowCanvas&) = delete;
    WindowCanvas& operator=(const WindowCanvas&) = delete;

    HDC get() const { return canvas_; }

  private:
    HWND window_;
    HDC canvas_;
};

/// The device context of a window that paints itself. The painting ends, and the area counts as painted, even if an
/// exception ends it.
class PaintCanvas {
  public:
    explicit PaintCanvas(HWND window) : window_(window), canvas_(BeginPaint(window, &paint_)) {}
    ~PaintCanvas() { EndPaint(window_, &paint_); }
    PaintCanvas(const PaintCanvas&) = delete;
    PaintCanvas& operator=(const PaintCanvas&) = delete;

    HDC get() const { return canvas_; }
    /// What needs painting, in pixels.
    const RECT& area() const { return paint_.rcPaint; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC canvas_;
};

/// The colour as the system wants it, with system colours looked up in the user's theme.
inline COLORREF resolve(Colour colour) {
    return colour.follows_theme() ? GetSysColor(static_cast<int>(colour.value & 0xFF)) : colour.value;
}

/// The colour for a text on a background: the text's own where that can be read, else black or white. Two colours of
/// the user's theme are taken as they are. For texts of a fixed colour on the theme's background, or the other way
/// round.
COLORREF legible(Colour text, Colour background);

/// Fills a rectangle of pixels without creating a brush.
inline void fill(HDC canvas, const RECT& area, Colour colour) {
    SetDCBrushColor(canvas, resolve(colour));
    FillRect(canvas, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

/// Blends a colour over a rectangle of pixels: an `opacity` of 0 leaves what is there, 255 fills the rectangle.
void blend(HDC canvas, const RECT& area, Colour colour, BYTE opacity);

/// Collects the drawing of one area in memory and shows it at once at the end of the scope, so that nothing flickers.
class BufferedCanvas {
  public:
    /// `area` is in pixels of `target`; drawing on `canvas()` uses the same coordinates.
    BufferedCanvas(HDC target, const RECT& area)
        : target_(target),
          area_(area),
          bitmap_(CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top)),
          memory_(target),
          selected_(memory_.get(), bitmap_.get()) {
        SetWindowOrgEx(canvas(), area.left, area.top, nullptr);
    }
    ~BufferedCanvas() {
        BitBlt(target_, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top, canvas(), area_.left,
               area_.top, SRCCOPY);
    }
    BufferedCanvas(const BufferedCanvas&) = delete;
    BufferedCanvas& operator=(const BufferedCanvas&) = delete;

    HDC canvas() const { return memory_.get(); }

  private:
    HDC target_;
    RECT area_;
    GdiObject<HBITMAP> bitmap_;
    MemoryCanvas memory_;
    Selection selected_;
};

}  // namespace quillomat
