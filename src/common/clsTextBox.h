#pragma once

#include <optional>
#include <string>

#include "forms/events.h"

namespace quillomat {

class TextBox;

/// The lines of a text box for several lines, and two shortcuts for it: Ctrl+A selects the whole text, Ctrl+Y cuts the
/// line of the caret.
///
/// Lines and characters are counted from 0. A line is what the box shows as one, so in a box that breaks lines at its
/// width a paragraph can be several.
class clsTextBox {
  public:
    /// `box` must outlive the object, or be exchanged before it goes.
    explicit clsTextBox(quillomat::TextBox& box) { set_TextBox(box); }
    ~clsTextBox();
    clsTextBox(const clsTextBox&) = delete;
    clsTextBox& operator=(const clsTextBox&) = delete;

    quillomat::TextBox& TextBox() const { return *box_; }
    /// Turns to another box; the one before loses the shortcuts.
    void set_TextBox(quillomat::TextBox& box);

    /// The length of the line that holds a character.
    int LineLen(int position) const;
    /// The line that holds a character.
    int GetLineFromChar(int position) const;
    /// At least 1: an empty box has one empty line.
    int LineCount() const;
    /// The first line that is in view.
    int TopLine() const;
    bool CanUndo() const;
    /// The position of a line's first character; nothing behind the last line.
    std::optional<int> GetCharFromLine(int line) const;
    /// A line without its line break; empty behind the last line.
    std::wstring GetLine(int line) const;
    /// Takes back the user's last change.
    void Undo();
    /// Empties a line; its line break stays, and the caret keeps its position in the text. Nothing behind the last
    /// line.
    void DelLine(int line);
    /// Whether the text has been changed since this was last set to false, or since the program set the text.
    bool IsDirty() const;
    void set_IsDirty(bool dirty);

  private:
    void KeyDown(KeyEvent& event);

    quillomat::TextBox* box_ = nullptr;
};

}  // namespace quillomat
