#pragma once

#include <string>
#include <string_view>

#include "forms/control.h"

namespace quillomat {

/// What a text box is for.
enum class TextBoxKind {
    SingleLine,
    /// Several lines to be edited; lines stay as long as they are.
    MultiLine,
    /// Several lines to be written; lines that are not extremely long break at the box's width.
    Writing,
    /// Several lines for reading only; lines that are not extremely long break at the box's width.
    Reading,
    /// A few lines for reading only, all of them in sight.
    Note,
    /// One line that the program fills in and the user reads, and can copy.
    Result,
    /// A small box that shows a help text; it stands in front of other controls and has no place in the Tab order.
    Help,
};

/// A box of text, of any length. Positions and lengths are in characters, lines end with CR LF.
class TextBox : public Control {
  public:
    TextBox(Container& container, Bounds bounds, TextBoxKind kind = TextBoxKind::SingleLine);

    /// The text has changed, by the user or by the program.
    std::function<void()> on_change;

    std::wstring text() const { return window_text(); }
    /// Sets the text, in which a NUL becomes a blank, and raises the change.
    void set_text(std::wstring_view text);
    bool empty() const { return GetWindowTextLengthW(window()) == 0; }

    /// What is selected; without a selection, where the caret is.
    std::size_t selection_start() const;
    std::size_t selection_length() const;
    std::wstring selected_text() const;
    /// Selects a range and scrolls it into view.
    void select(std::size_t start, std::size_t length);

    /// Makes the box as wide as its text needs. For help boxes.
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
