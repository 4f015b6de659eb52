#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// A list of texts in the order of their addition. One text can be selected.
class ListBox : public Control {
  public:
    ListBox(Container& container, Bounds bounds) : ListBox(container, bounds, 0) {}

    /// Returns the number of texts.
    int count() const;
    /// Removes all texts.
    void clear();
    /// Appends a text. Throws `Error` with OutOfMemory if Windows has no memory for it.
    void add(std::wstring_view text);
    /// Suspends painting of the list during its lifetime, for adding many texts.
    class RedrawLock {
      public:
        explicit RedrawLock(ListBox& list);
        ~RedrawLock();
        RedrawLock(const RedrawLock&) = delete;
        RedrawLock& operator=(const RedrawLock&) = delete;

      private:
        ListBox& list_;
    };

    /// Returns the text at a position; empty if there is none.
    std::wstring item(int index) const;

    /// Returns the position of the selected text, or nothing.
    virtual std::optional<int> selected_index() const;
    /// Selects the text at a position and raises on_click. Throws `Error` with SubscriptOutOfRange if there is none.
    virtual void select_index(int index);
    /// Returns the selected text; empty if none is selected.
    std::wstring text() const;
    /// Selects the first text equal to `text`, case included, and raises on_click. Does nothing if there is none.
    void select_text(std::wstring_view text);

    /// Scrolls the text at a position to the top, as far as the list can scroll.
    void set_top_index(int index);

    /// Returns the position of the text nearest to a point in pixels. Outside of the list, the result has a flag above
    /// the lower 16 bits, so that it is the position of no text.
    int item_from_point(int x, int y) const;

    void notified(WORD code) override;

  protected:
    /// For derived classes that need further styles, such as an owner-drawn list.
    ListBox(Container& container, Bounds bounds, DWORD further_style);
};

}  // namespace quillomat
