#include "viewer/frmFind.h"

#include <cstdint>
#include <limits>

#include "forms/message_box.h"
#include "text/error.h"
#include "win/upper_case.h"

namespace quillomat {
namespace {

// Keeps a window above all others. Throws `Error` with Overflow if the handle does not fit into 16 bits, which is how
// wide handles were in 16-bit Windows.
void StayOnTop(HWND window) {
    const auto handle = reinterpret_cast<std::intptr_t>(window);
    if (handle < std::numeric_limits<std::int16_t>::min() || handle > std::numeric_limits<std::int16_t>::max()) {
        throw Error(ErrorCode::Overflow);
    }
    SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

}  // namespace

frmFind::frmFind(Application& application, FindState& state, Form& searched, TextBox& box)
    : Form(application,
           {.name = L"frmFind", .caption = L"Find", .width = 6675, .height = 1380, .border = FormBorder::Dialog}),
      state_(state),
      searched_(searched),
      box_(box) {
    set_owner(searched);
    // This height keeps the dialog clear of the viewer's cheat text.
    set_inner_size(6435, 780);
    txtFind.set_tool_tip(L"Text to Find");
    chkCase.set_tool_tip(L"Case Sensitivity");
    optDirection[0].set_tool_tip(L"Search to Beginning of Document");
    optDirection[1].set_tool_tip(L"Search to End of Document");
    cmdFind.set_tool_tip(L"Start Search");
    cmdcancel.set_tool_tip(L"Close this dialog");
    set_default_button(&cmdFind);
    set_cancel_button(&cmdcancel);
    bind();
}

void frmFind::bind() {
    on_load = [this] { Form_Load(); };
    on_unload = [this] { Form_Unload(); };
    drag_by(*this);
    txtFind.on_change = [this] { txtFind_Change(); };
    txtFind.on_got_focus = [this] { txtFind.select(0, txtFind.text().size()); };
    chkCase.on_click = [this] { state_.gFindCase = chkCase.value() ? 1 : 0; };
    for (OptionButton& option : optDirection) {
        option.on_click = [this] { state_.gFindDirection = optDirection[1].value(); };
    }
    cmdFind.on_click = [this] {
        state_.gFindString = txtFind.text();
        FindIt();
    };
    cmdcancel.on_click = [this] { close(); };
}

void frmFind::Form_Load() {
    cmdFind.set_enabled(false);
    optDirection[state_.gFindDirection ? 1 : 0].set_value(true);
    chkCase.set_value(state_.gFindCase != 0);
    if (!state_.gFindString.empty()) {
        // Filling in the previous text is no edit: the next step continues the previous search.
        const bool changed = state_.gFirstTime;
        txtFind.set_text(state_.gFindString);
        state_.gFirstTime = changed;
    }
    txtFind.set_focus();
    place_over(searched_, Over::Top);
    stay_in_front();
}

void frmFind::stay_in_front() {
    try {
        StayOnTop(window());
    } catch (const Error& error) {
        // Most handles are too large. The dialog then stays in front of its owner, but not of other windows.
        if (error.code() != ErrorCode::Overflow) throw;
    }
}

void frmFind::Form_Unload() {
    state_.gFindString = txtFind.text();
    state_.gFindCase = chkCase.value() ? 1 : 0;
}

void frmFind::txtFind_Change() {
    cmdFind.set_enabled(!txtFind.empty());
    state_.gFirstTime = true;
}

void frmFind::FindIt() {
    if (const auto found = find_in_text(state_, box_.text(), box_.selection_start(), upper_case)) {
        searched_.bring_to_foreground();
        box_.set_focus();
        box_.select(*found, state_.gFindString.size());
    } else {
        show_message(*this, {.text = L"Search completed", .title = L"Find", .icon = MessageIcon::Information});
        txtFind.set_focus();
    }
    state_.gCurPos = box_.selection_start();
    state_.gFirstTime = false;
}

}  // namespace quillomat
