#include "output/frmMailCheats.h"

#include <optional>
#include <unordered_map>
#include <vector>

#include "common/line_count.h"
#include "common/minimum_size.h"
#include "output/mail_window.h"
#include "text/error.h"
#include "text/line_end.h"
#include "text/mail.h"
#include "text/picked_games.h"
#include "text/window_size.h"
#include "win/mail_client.h"
#include "win/temporary_text_file.h"

namespace quillomat {
namespace {

constexpr WindowSize minimum_size{7500, 5400};

constexpr double margin = 120;
constexpr double two_lines = 420;
constexpr double one_line = 225;
constexpr double input_height = 315;
constexpr double button_width = 1215;
constexpr double button_height = 345;

// Writes the attached file. Throws `Error` with a sentence for the user if that fails.
void attach(std::optional<TemporaryTextFile>& file, TextFileSlot& slot, const std::wstring& path,
            const std::wstring& cheats) {
    try {
        file.emplace(slot, path, cheats + std::wstring(line_end));
    } catch (const Error& error) {
        throw Error(error.code(),
                    L"The message was not sent, because this file, which goes with it, cannot be written:\r\n" + path +
                        L"\r\n\r\n" + error.description() +
                        L"\r\n\r\nYou can include the cheats in the e-mail instead.");
    }
}

}  // namespace

frmMailCheats::frmMailCheats(Application& application, Session& session, ViewerLink& viewer)
    : Form(application, {.name = L"frmMailCheats",
                         .caption = L"Mail Cheat Codes to a friend",
                         .width = 9600,
                         .height = 6900,
                         .minimum = minimum_size}),
      session_(session),
      viewer_(viewer) {
    List2.set_visible(false);
    Label6.set_visible(false);
    set_cancel_button(&Command2);
    bind();
    bind_inputs();
    bind_hover_help();
    UpdateSendButton();
}

void frmMailCheats::bind() {
    on_load = [this] { Form_Load(); };
    on_resize = [this] { Form_Resize(); };
    on_unload = [this] { Form_Unload(); };
    List1.on_click = [this] { List1_Click(); };
    List1.on_key_down = [this](KeyEvent& event) { List1_KeyDown(event); };
    Command1.on_click = [this] { SendCheats(); };
    Command2.on_click = [this] { close(); };
}

void frmMailCheats::bind_inputs() {
    const auto go_on_with = [](Control& next) {
        return [&next](KeyEvent& event) {
            if (event.key != keys::enter) return;
            event.handled = true;
            next.set_focus();
        };
    };
    Text1.on_key_down = go_on_with(Text2);
    Text2.on_key_down = go_on_with(Text4);
    Text4.on_key_down = go_on_with(Text3);
    Text1.on_change = [this] { UpdateSendButton(); };
    Text2.on_change = [this] { Text2_Change(); };
    Text4.on_change = [this] { UpdateSendButton(); };
    keep_line_count(lines_, [this] { UpdateSendButton(); });
    Text3.on_double_click = [this] { Text3_DblClick(); };
}

void frmMailCheats::bind_hover_help() {
    hover_help_.add(Command1, L"Send E-mail!");
    hover_help_.add(Command2, L"Cancel E-mail");
    hover_help_.keep_above_pointer();
    hover_help_.pass_focus_to(Command1, Command2);
    Timer1.on_timer = [this] { hover_help_.tick(); };
}

void frmMailCheats::Form_Load() {
    tell_mail_requirements(*this);
    {
        const ListBox::RedrawLock lock(List1);
        for (int number = 0; number < viewer_.game_count(); ++number) {
            names_.push_back(viewer_.game_name(number));
            List1.add(names_.back());
        }
        List1.fit_scroll_range();
    }
    if (const auto selected = viewer_.selected_game()) {
        List1.select_index(*selected);
        List1.set_picked(*selected, true);
    }
    const Settings& stored = session_.settings;
    Option1.set_value(stored.read(settings::MailOption));
    Option2.set_value(!Option1.value());
    Text1.set_text(stored.read(settings::MailYourName));
    Text2.set_text(stored.read(settings::MailFriendsName));
    Text3.set_text(stored.read(settings::MailMessage));
    Text4.set_text(stored.read(settings::MailFriendsEmail));
    centre_on_screen();
}

void frmMailCheats::Form_Unload() {
    const Settings& store = session_.settings;
    store.write(settings::MailOption, Option1.value());
    store.write(settings::MailYourName, Text1.text());
    store.write(settings::MailFriendsName, Text2.text());
    store.write(settings::MailMessage, Text3.text());
    store.write(settings::MailFriendsEmail, Text4.text());
}

void frmMailCheats::Form_Resize() {
    if (window_state() == WindowState::Minimised) return;
    if (restore_minimum_size(*this, minimum_size)) return;
    const double list_width = (inner_width() - 3 * margin) * 0.4;
    lay_out_list(list_width);
    lay_out_letter(margin + list_width + margin);
}

void frmMailCheats::lay_out_list(double width) {
    const double hint_top = inner_height() - margin - two_lines;
    const double list_top = margin + two_lines;
    Label1.move({margin, margin, width, two_lines});
    List1.move({margin, list_top, width, hint_top - list_top - margin / 2});
    // No row may be cut off at the lower edge.
    RECT inside{};
    GetClientRect(List1.window(), &inside);
    const auto cut_off = static_cast<int>(inside.bottom % SendMessageW(List1.window(), LB_GETITEMHEIGHT, 0, 0));
    List1.set_height(List1.height() - to_twips(cut_off, dpi()));
    Label7.move({margin, hint_top, width, two_lines});
}

void frmMailCheats::lay_out_letter(double left) {
    constexpr double label_width = 1200;
    constexpr double row_height = 390;
    const double right = inner_width() - margin;
    const double width = right - left;
    double top = margin;
    const auto lay_out_row = [&](StaticLabel& label, TextBox& box) {
        label.move({left, top + 45, label_width, one_line});
        box.move({left + label_width, top, width - label_width, input_height});
        top += row_height;
    };
    lay_out_row(Label2, Text1);
    lay_out_row(Label3, Text2);
    lay_out_row(Label4, Text4);
    Label5.move({left, top + 45, width, one_line});
    top += 45 + one_line;

    const double buttons_top = inner_height() - margin - button_height;
    const double options_top = buttons_top - margin - 2 * 270;
    Text3.move({left, top, width, options_top - top - margin / 2});
    Option1.move({left, options_top, width, 255});
    Option2.move({left, options_top + 270, width, 255});
    Command2.move({right - 2 * button_width - margin, buttons_top, button_width, button_height});
    Command1.move({right - button_width, buttons_top, button_width, button_height});
    Label6.move({left, buttons_top + 75, Command2.left() - left - margin, one_line});
}

void frmMailCheats::List1_Click() {
    std::vector<std::wstring> names;
    for (const int index : List1.picked_indexes()) names.push_back(names_[static_cast<std::size_t>(index)]);
    {
        const ListBox::RedrawLock lock(List2);
        List2.clear();
        for (const std::wstring& name : names) List2.add(name);
    }
    List1.set_tool_tip(picked_games_tooltip(names));
    UpdateSendButton();
}

void frmMailCheats::List1_KeyDown(KeyEvent& event) {
    const bool upwards = event.key == keys::up;
    if (!event.modifiers.only_control() || (!upwards && event.key != keys::down)) return;
    // Otherwise the list would move its caret by one more item.
    event.handled = true;
    const int current = List1.selected_index().value_or(0);
    const std::vector<int> picked = List1.picked_indexes();
    const auto find_picked = upwards ? previous_picked : next_picked;
    if (const auto target = find_picked(current, picked)) List1.select_index(*target);
}

void frmMailCheats::Text2_Change() {
    set_caption(cheats_mail_caption(Text2.text()));
    UpdateSendButton();
}

void frmMailCheats::Text3_DblClick() {
    // Select the whole placeholder, so that typing replaces it.
    if (const auto length = placeholder_length(Text3.selected_text())) Text3.select(Text3.selection_start(), *length);
}

void frmMailCheats::UpdateSendButton() {
    Command1.set_enabled(List2.count() > 0 && !Text1.empty() && !Text2.empty() && !Text3.empty() && !Text4.empty());
}

std::wstring frmMailCheats::picked_cheats() const {
    std::unordered_map<std::wstring_view, int> numbers;
    for (int number = 0; number < Catalogue::slot_count; ++number) {
        // emplace keeps the first of several games with the same name.
        numbers.emplace(session_.catalogue.name(number), number);
    }
    std::vector<MailedGame> games;
    for (int index = 0; index < List2.count(); ++index) {
        const auto found = numbers.find(List2.item(index));
        if (found != numbers.end()) games.push_back({found->first, session_.catalogue.cheats(found->second)});
    }
    return mailed_cheats(games);
}

void frmMailCheats::SendCheats() {
    Text5.set_visible(false);
    const std::wstring cheats = picked_cheats();
    const bool attached = Option2.value();
    const std::wstring path = attached ? session_.program_folder + L"\\Cheats.txt" : std::wstring();
    const Mail mail{.address = Text4.text(),
                    .name = Text2.text(),
                    .subject = cheats_mail_subject(Text1.text(), Text2.text()),
                    .text = attached ? cheats_mail_body(Text3.text()) : cheats_mail_body(Text3.text(), cheats),
                    .attachment = path};
    // Deleted after the session has ended, even if the mail program has crashed.
    std::optional<TemporaryTextFile> attachment;
    const bool sent = send_mail(*this, Label6, [&, owner = window()] {
        MailSession mail_session(owner);
        if (attached) attach(attachment, session_.text_file, path, cheats);
        mail_session.send(mail);
        mail_session.end();
    });
    attachment.reset();
    if (sent) close_after_sending(*this);
}

}  // namespace quillomat
