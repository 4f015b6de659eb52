#pragma once

#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// The purpose of a text box.
enum class TextBoxKind {
    SingleLine,
    /// Several lines for editing, without line breaks at the box's width.
    MultiLine,
    /// Several lines for writing. Lines break at the box's width, unless one is extremely long.
    Writing,
    /// Several read-only lines. Lines break at the box's width, unless one is extremely long.
    Reading,
    /// A few read-only lines, without a scroll bar.
    Note,
    /// One read-only line for a result, which the user can copy.
    Result,
    /// A small box for a help text, in front of other controls and without a tab stop.
    Help,
};

/// A text box without a length limit. Positions and lengths are in characters; lines end with CR LF.
class TextBox : public Control {
  public:
    TextBox(Container& container, Bounds bounds, TextBoxKind kind = TextBoxKind::SingleLine);

    /// The user or the program has changed the text.
    std::function<void()> on_change;

    std::wstring text() const { return window_text(); }
    /// Sets the text, with a blank for every NUL, and raises on_change.
    void set_text(std::wstring_view text);
    bool empty() const { return GetWindowTextLengthW(window()) == 0; }

    /// The selection, which is empty and at the caret if nothing is selected.
    std::size_t selection_start() const;
    std::size_t selection_length() const;
    std::wstring selected_text() const;
    /// Selects a range and scrolls it into view.
    void select(std::size_t start, std::size_t length);

    /// Sets the width that the text needs. For help boxes.
    void fit_width_to_text();

    void notified(WORD code) override;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    void choose_line_breaks(std::wstring_view text);

    TextBoxKind kind_;
    bool breaks_lines_;
    bool program_changes_ = false;
};

}  // namespace quillomat
