#include "common/clsTextBox.h"

#include <limits>

#include "common/copy_text.h"
#include "controls/text_box.h"

namespace quillomat {
namespace {

// Looks up the window for each message, because a text box may recreate its window.
LRESULT send(const TextBox& box, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return SendMessageW(box.window(), message, wparam, lparam);
}

}  // namespace

clsTextBox::~clsTextBox() {
    box_->on_shortcut_key = nullptr;
}

void clsTextBox::set_TextBox(quillomat::TextBox& box) {
    if (box_) box_->on_shortcut_key = nullptr;
    box_ = &box;
    box_->on_shortcut_key = [this](KeyEvent& event) { KeyDown(event); };
}

int clsTextBox::LineLen(int position) const {
    return static_cast<int>(send(*box_, EM_LINELENGTH, static_cast<WPARAM>(position)));
}

int clsTextBox::GetLineFromChar(int position) const {
    return static_cast<int>(send(*box_, EM_LINEFROMCHAR, static_cast<WPARAM>(position)));
}

int clsTextBox::LineCount() const {
    return static_cast<int>(send(*box_, EM_GETLINECOUNT));
}

int clsTextBox::TopLine() const {
    return static_cast<int>(send(*box_, EM_GETFIRSTVISIBLELINE));
}

bool clsTextBox::CanUndo() const {
    return send(*box_, EM_CANUNDO) != 0;
}

std::optional<int> clsTextBox::GetCharFromLine(int line) const {
    if (line >= LineCount()) return std::nullopt;
    return static_cast<int>(send(*box_, EM_LINEINDEX, static_cast<WPARAM>(line)));
}

std::wstring clsTextBox::GetLine(int line) const {
    const auto start = GetCharFromLine(line);
    const int length = start ? LineLen(*start) : 0;
    if (length < 1) return {};
    const auto size = static_cast<std::size_t>(length);
    // EM_GETLINE takes the buffer's size from its first 16 bits, so it cannot return a longer line.
    if (size > std::numeric_limits<WORD>::max()) return box_->text().substr(static_cast<std::size_t>(*start), size);
    std::wstring text(size, L'\0');
    text[0] = static_cast<wchar_t>(length);
    send(*box_, EM_GETLINE, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

void clsTextBox::Undo() {
    send(*box_, EM_UNDO);
}

void clsTextBox::DelLine(int line) {
    const auto start = GetCharFromLine(line);
    if (!start) return;
    const std::size_t caret = box_->selection_start();
    send(*box_, EM_SETSEL, static_cast<WPARAM>(*start), *start + LineLen(*start));
    // EM_REPLACESEL, unlike a new text for the whole box, can be undone by the user.
    send(*box_, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
    box_->select(caret, 0);
}

bool clsTextBox::IsDirty() const {
    return send(*box_, EM_GETMODIFY) != 0;
}

void clsTextBox::set_IsDirty(bool dirty) {
    send(*box_, EM_SETMODIFY, dirty);
}

void clsTextBox::KeyDown(KeyEvent& event) {
    if (!event.modifiers.only_control()) return;
    if (event.key == 'A') {
        event.handled = true;
        send(*box_, EM_SETSEL, 0, -1);
    } else if (event.key == 'Y') {
        event.handled = true;
        const int line = GetLineFromChar(static_cast<int>(box_->selection_start()));
        CopyText(box_->form(), GetLine(line));
        DelLine(line);
    }
}

}  // namespace quillomat
