#pragma once

#include <optional>
#include <string>

#include "forms/events.h"

namespace quillomat {

class TextBox;

/// Gives access to the lines of a multi-line text box, and adds two shortcuts to it: Ctrl+A selects the whole text,
/// Ctrl+Y cuts the line with the caret.
///
/// Lines and characters are counted from 0. If the box wraps its text, every displayed line counts.
class clsTextBox {
  public:
    /// `box` must outlive this object, unless another box is set before it is destroyed.
    explicit clsTextBox(quillomat::TextBox& box) { set_TextBox(box); }
    ~clsTextBox();
    clsTextBox(const clsTextBox&) = delete;
    clsTextBox& operator=(const clsTextBox&) = delete;

    quillomat::TextBox& TextBox() const { return *box_; }
    /// Moves the shortcuts from the present box to another one.
    void set_TextBox(quillomat::TextBox& box);

    /// Returns the length of the line with the character at `position`.
    int LineLen(int position) const;
    /// Returns the number of the line with the character at `position`.
    int GetLineFromChar(int position) const;
    /// Returns the number of lines. An empty box has one empty line.
    int LineCount() const;
    /// Returns the number of the first visible line.
    int TopLine() const;
    bool CanUndo() const;
    /// Returns the position of a line's first character, or nothing after the last line.
    std::optional<int> GetCharFromLine(int line) const;
    /// Returns a line without its line break. The result is empty after the last line.
    std::wstring GetLine(int line) const;
    /// Undoes the user's last change.
    void Undo();
    /// Deletes the text of a line, but not its line break. The caret keeps its position. Does nothing after the last
    /// line.
    void DelLine(int line);
    /// Returns true if the text has changed since this flag was last set to false, or since the program set the text.
    bool IsDirty() const;
    void set_IsDirty(bool dirty);

  private:
    void KeyDown(KeyEvent& event);

    quillomat::TextBox* box_ = nullptr;
};

}  // namespace quillomat
