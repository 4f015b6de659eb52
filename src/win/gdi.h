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

/// A shared font, deleted with its last owner.
using Font = std::shared_ptr<std::remove_pointer_t<HFONT>>;

/// Selects an object into a device context, and the previous object again at the end of the scope.
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
    /// Drawing is compatible with `like`, or with the screen if `like` is null.
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

/// The device context for WM_PAINT. EndPaint runs even if painting throws, because Windows would otherwise send
/// WM_PAINT again and again.
class PaintCanvas {
  public:
    explicit PaintCanvas(HWND window) : window_(window), canvas_(BeginPaint(window, &paint_)) {}
    ~PaintCanvas() { EndPaint(window_, &paint_); }
    PaintCanvas(const PaintCanvas&) = delete;
    PaintCanvas& operator=(const PaintCanvas&) = delete;

    HDC get() const { return canvas_; }
    /// The area that needs painting, in pixels.
    const RECT& area() const { return paint_.rcPaint; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC canvas_;
};

/// Returns the colour as GDI takes it, with system colours looked up in the user's theme.
inline COLORREF resolve(Colour colour) {
    return colour.follows_theme() ? GetSysColor(static_cast<int>(colour.value & 0xFF)) : colour.value;
}

/// Returns the text's colour if it can be read on the background, otherwise black or white: a fixed colour may have no
/// contrast with a colour of the user's theme. Two colours of the theme are assumed to go together.
COLORREF legible(Colour text, Colour background);

/// Fills a rectangle of pixels without creating a brush.
inline void fill(HDC canvas, const RECT& area, Colour colour) {
    SetDCBrushColor(canvas, resolve(colour));
    FillRect(canvas, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

/// Blends a colour over a rectangle of pixels. An `opacity` of 0 changes nothing, 255 fills the rectangle.
void blend(HDC canvas, const RECT& area, Colour colour, BYTE opacity);

/// Draws an area into a bitmap and copies it to the target at the end of the scope, so that nothing flickers.
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
