#include "viewer/frmFind.h"

#include "common/desktop.h"
#include "forms/message_box.h"
#include "text/error.h"
#include "win/upper_case.h"

namespace quillomat {

frmFind::frmFind(Application& application, FindState& state, Form& searched, TextBox& box)
    : Form(application,
           {.name = L"frmFind", .caption = L"Find", .width = 6675, .height = 1380, .border = FormBorder::Dialog}),
      state_(state),
      searched_(searched),
      box_(box) {
    set_owner(searched);
    // Low enough to cover no cheat text below the viewer's title bar, image bar and letters.
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
        // The user finds what was looked for last, and the next step goes on from the last one.
        const bool changed = state_.gFirstTime;
        txtFind.set_text(state_.gFindString);
        state_.gFirstTime = changed;
    }
    txtFind.set_focus();
    move_to(searched_.left() + (searched_.width() - width()) / 2, searched_.top());
    stay_in_front();
}

void frmFind::stay_in_front() {
    try {
        StayOnTop(window());
    } catch (const Error& error) {
        // For most windows it fails; the dialog is then in front of its own window only, which owns it.
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
        show_message(window(), {.text = L"Search completed", .title = L"Find", .icon = MessageIcon::Information});
        txtFind.set_focus();
    }
    state_.gCurPos = box_.selection_start();
    state_.gFirstTime = false;
}

}  // namespace quillomat
