#include "output/frmSave.h"

#include <iterator>
#include <utility>

#include "common/select_all_text.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "output/wait_notice.h"
#include "text/error.h"
#include "text/export_text.h"
#include "text/line_end.h"
#include "text/paths.h"
#include "text/saved_file.h"
#include "win/folders.h"
#include "win/upper_case.h"

namespace quillomat {
namespace {

constexpr double designed_width = 8100;
constexpr WindowSize smallest_size{6900, 4200};

constexpr double margin = 120;
constexpr double label_height = 225;
constexpr double field_height = 315;
constexpr double button_width = 1215;
constexpr double button_height = 375;

}  // namespace

frmSave::frmSave(Application& application, Session& session, ViewerLink& viewer)
    : Form(application, {.name = L"frmSave",
                         .caption = L"Save",
                         .width = designed_width,
                         .height = smallest_size.height,
                         .minimum = smallest_size}),
      session_(session),
      viewer_(viewer) {
    bind();
    bind_hover_help();
    Label6.set_visible(false);
    // Enter typed ahead must not save before a folder is open, which Dir1_Change reports.
    Command1.set_enabled(false);
    set_default_button(&Command1);
    set_cancel_button(&Command2);
    // Lay out before filling the lists: the scroll position of the folders depends on the height of their list.
    Form_Resize();
}

void frmSave::bind() {
    on_load = [this] { Form_Load(); };
    on_resize = [this] { Form_Resize(); };
    drag_by(*this);
    Drive1.on_change = [this] { Drive1_Change(); };
    Dir1.run_without_blocking = [this](auto work, DWORD milliseconds) {
        return wait_for(std::move(work), milliseconds);
    };
    Dir1.on_change = [this] { Dir1_Change(); };
    // OK is the default button only while Enter does not open a folder.
    Dir1.on_click = [this] { set_default_button(Dir1.enter_opens() ? nullptr : &Command1); };
    Dir1.on_focus_changed = Dir1.on_click;
    File1.set_spoken_name(L"Files");
    File1.on_click = [this] { File1_Click(); };
    File1.on_double_click = [this] { Command1.click(); };
    Command1.on_click = [this] { Command1_Click(); };
    Command2.on_click = [this] { close(); };
}

void frmSave::bind_hover_help() {
    hover_help_.add(Command1, L"Save cheat codes");
    hover_help_.add(Command2, L"Cancel save");
    hover_help_.on_shown = [this](Control& button, const MouseEvent&) {
        constexpr double gap = 30;
        place_help_box(Text2, button.left(), button.top() + button.height() + gap);
    };
    hover_help_.pass_focus_to(Command1, Command2);
    Timer1.on_timer = [this] { Timer1_Timer(); };
}

void frmSave::Form_Load() {
    const std::wstring game = viewer_.shown_game();
    set_caption(L"Save cheat codes of " + game);
    Combo1.add(L"Text Files (*.txt)");
    Combo1.select_index(0);
    if (answers_at_once(current_folder())) open_first_folder();
    Text1.set_text(proposed_file_name(game));
    SelectAllText(Text1);
    place_over(viewer_.window());
}

void frmSave::open_first_folder() {
    // If the current folder no longer exists, start in the nearest parent folder that does.
    const std::vector<FolderStep> steps = folder_steps(current_folder());
    for (auto step = steps.rbegin(); step != steps.rend() && Dir1.path().empty(); ++step) {
        try {
            Dir1.set_path(step->path);
        } catch (const Error& error) {
            const bool drive_is_gone = error.code() == ErrorCode::DiskNotReady || std::next(step) == steps.rend();
            if (drive_is_gone) Dir1.set_path(session_.program_folder);
        }
    }
}

void frmSave::Form_Resize() {
    if (window_state() == WindowState::Minimised) return;
    const double button_left = inner_width() - margin - button_width;
    const double column = (button_left - 3 * margin) / 2;
    const double second = 2 * margin + column;
    const double lists_top = 780;
    const double fields_top = inner_height() - margin - field_height;
    const double captions_top = fields_top - label_height - 15;
    const double lists_height = captions_top - margin - lists_top;

    Label1.move({margin, 105, column, label_height});
    Text1.move({margin, 345, column, field_height});
    File1.move({margin, lists_top, column, lists_height});
    Label4.move({margin, captions_top, column, label_height});
    Combo1.move({margin, fields_top, column, field_height});
    Label2.move({second, 105, column, label_height});
    Label3.move({second, 390, column, label_height});
    Dir1.move({second, lists_top, column, lists_height});
    Label5.move({second, captions_top, column, label_height});
    Drive1.move({second, fields_top, column, field_height});
    // The help box of OK appears between the two buttons.
    Command1.move({button_left, 345, button_width, button_height});
    Command2.move({button_left, 1080, button_width, button_height});
    // Below the help box of Cancel; the text takes two lines.
    Label6.move({button_left, 1845, button_width, 2 * label_height});
}

void frmSave::Drive1_Change() {
    const std::wstring drive = Drive1.drive();
    // The drive letter of the current folder may be a small one.
    if (upper_cased(Dir1.path()).starts_with(drive)) return;
    try {
        Dir1.set_path(drive);
    } catch (const Error& error) {
        show_error(*this, error);
        Drive1.select_drive_of(Dir1.path());
    }
}

void frmSave::Dir1_Change() {
    Label3.set_caption(Dir1.path());
    Command1.set_enabled(true);
    Drive1.select_drive_of(Dir1.path());
    list_files();
}

void frmSave::list_files() {
    const ListBox::RedrawLock lock(File1);
    File1.clear();
    for (const std::wstring& name : Dir1.files()) {
        if (has_extension(name, L".txt")) File1.add(name);
    }
}

void frmSave::File1_Click() {
    Text1.set_text(File1.text());
}

void frmSave::Command1_Click() {
    if (Text1.empty()) {
        show_message(*this, {.text = L"Please give a file name!", .title = L"Error", .icon = MessageIcon::Information});
        Text1.set_focus();
        return;
    }
    const std::wstring name = file_name_of(Text1.text());
    if (const auto fault = file_name_fault(name)) {
        show_message(*this, {.text = *fault, .title = L"Error", .icon = MessageIcon::Information});
        SelectAllText(Text1);
        return;
    }
    chosen_path_ = Label3.caption() + L"\\" + name;
    try {
        if (may_be_written() && write()) close();
    } catch (const Error& error) {
        show_error(*this, error);
    }
}

bool frmSave::wait_for(std::function<void()> work, DWORD milliseconds) {
    const WaitNotice notice(*this, Label6);
    return application().run_without_blocking(std::move(work), milliseconds);
}

bool frmSave::write() {
    const std::wstring text = export_text(viewer_.shown_game(), viewer_.shown_cheats()).append(line_end);
    return wait_for([&] { session_.text_file.replace(chosen_path_, text); });
}

bool frmSave::may_be_written() {
    bool exists = false;
    if (!wait_for([&] { exists = file_exists(chosen_path_); })) return false;
    if (!exists) return true;
    return show_message(*this, {.text = L"The cheat codes for " + chosen_path_ +
                                        L" already exist in this directory.\r\nDo you want to overwrite them?",
                                .title = L"Overwrite?",
                                .buttons = MessageButtons::OkCancel}) == MessageAnswer::Ok;
}

void frmSave::Timer1_Timer() {
    if (!std::exchange(shown_before_, true)) {
        // The window reaches its final position only after on_load.
        CenterMouseOn(Command1.window());
        // List a folder on a slow drive only now that the dialog is visible and can show that it waits.
        if (Dir1.path().empty()) open_first_folder();
    }
    hover_help_.tick();
}

}  // namespace quillomat
