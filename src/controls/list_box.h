#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// A list of texts, in the order they were added, of which one can be selected.
class ListBox : public Control {
  public:
    ListBox(Container& container, Bounds bounds) : ListBox(container, bounds, 0) {}

    /// How many texts there are.
    int count() const;
    /// Removes all texts.
    void clear();
    /// Adds a text at the end. Throws `Error` with OutOfMemory when the list takes no more.
    void add(std::wstring_view text);
    /// Keeps the list from painting while many texts are added.
    class Filling {
      public:
        explicit Filling(ListBox& list);
        ~Filling();
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;

      private:
        ListBox& list_;
    };

    /// The text at a position; empty where there is none.
    std::wstring item(int index) const;

    /// The position of the selected text, or nothing.
    virtual std::optional<int> selected_index() const;
    /// Selects the text at a position and raises the click. Throws `Error` with SubscriptOutOfRange when there is none.
    virtual void select_index(int index);
    /// The selected text; empty when none is selected.
    std::wstring text() const;
    /// Selects the first text that equals this one to the letter, and raises the click; without one, nothing changes.
    void select_text(std::wstring_view text);

    /// Scrolls the text at a position to the top, as far as the list goes.
    void set_top_index(int index);

    /// What the system says lies at a point in pixels: a position, with a flag above its 16 bits when the point lies
    /// outside of the list's texts.
    int item_from_point(int x, int y) const;

    void notified(WORD code) override;

  protected:
    /// A list of another style, such as one that draws its items itself.
    ListBox(Container& container, Bounds bounds, DWORD further_style);
};

}  // namespace quillomat
