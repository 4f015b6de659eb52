#include "output/frmMailMe.h"

#include "common/line_count.h"
#include "common/minimum_size.h"
#include "common/pointer.h"
#include "common/window_settings.h"
#include "output/mail_window.h"
#include "text/mail.h"
#include "text/product.h"
#include "text/window_size.h"
#include "win/mail_client.h"

namespace quillomat {
namespace {

constexpr WindowSize minimum_size{5715, 3960};
constexpr WindowKeys window_keys{settings::frmMailMeWindowState, settings::frmMailMeWidth, settings::frmMailMeHeght,
                                 settings::frmMailMeHeight};

}  // namespace

frmMailMe::frmMailMe(Application& application, Session& session)
    : Form(application, {.name = L"frmMailMe",
                         .caption = L"Mail me!",
                         .width = settings::frmMailMeWidth.fallback,
                         .height = settings::frmMailMeHeght.fallback,
                         .minimum = minimum_size}),
      session_(session) {
    Label6.set_visible(false);
    bind();
    bind_hover_help();
    UpdateSendButton();
}

void frmMailMe::bind() {
    on_load = [this] { Form_Load(); };
    on_resize = [this] { Form_Resize(); };
    on_unload = [this] { Form_Unload(); };
    drag_by(*this);
    Combo1.on_change = [this] { UpdateSendButton(); };
    Combo1.on_key_down = [this](KeyEvent& event) { Combo1_KeyDown(event); };
    keep_line_count(lines_, [this] { UpdateSendButton(); });
    Command1.on_click = [this] { SendToAuthor(); };
    Command2.on_click = [this] { close(); };
}

void frmMailMe::bind_hover_help() {
    hover_help_.add(Command1, L"Click here to send the message(to me!)");
    hover_help_.add(Command2, L"Click here to cancel the message (too bad)");
    hover_help_.keep_above_pointer();
    hover_help_.pass_focus_to(Command1, Command2);
    Timer1.on_timer = [this] { hover_help_.tick(); };
}

void frmMailMe::Form_Load() {
    tell_mail_requirements(*this);
    restore_window_state(*this, session_.settings, window_keys);
    restore_window_size(*this, session_.settings, window_keys);
    centre_on_screen();
    for (const wchar_t* subject : canned_subjects) Combo1.add(subject);
    CenterMouseOn(Command1.window());
}

void frmMailMe::Form_Unload() {
    store_window(*this, session_.settings, window_keys);
}

void frmMailMe::Form_Resize() {
    if (window_state() == WindowState::Minimised) return;
    if (restore_minimum_size(*this, minimum_size)) return;
    const WindowSize size{width(), height()};
    Combo1.set_width(size.width - 345);
    Text1.set_width(size.width - 345);
    Text1.set_height(size.height - 1860);
    const double buttons_top = size.height - 915;
    Command1.set_left(size.width - 1575);
    Command1.set_top(buttons_top);
    Command2.set_left(size.width - 3315);
    Command2.set_top(buttons_top);
    Label6.set_top(buttons_top + 45);
}

void frmMailMe::Combo1_KeyDown(KeyEvent& event) {
    if (event.key != keys::enter) return;
    event.handled = true;
    Text1.set_focus();
}

void frmMailMe::UpdateSendButton() {
    Command1.set_enabled(!Text1.empty() && !Combo1.text().empty());
    // A single press of Escape must not discard a written message.
    set_cancel_button(Text1.empty() || Text1.text() == proposed_ ? &Command2 : nullptr);
}

void frmMailMe::propose_message(const std::wstring& text) {
    if (!Text1.empty()) return;
    proposed_ = text;
    Text1.set_text(text);
    Text1.select(0, text.size());
}

void frmMailMe::SendToAuthor() {
    const Mail mail{.address = product::mail_address,
                    .name = product::author,
                    .subject = author_mail_subject(Combo1.text()),
                    .text = Text1.text(),
                    .attachment = {}};
    const bool sent = send_mail(*this, Label6, [&mail, owner = window()] {
        MailSession mail_session(owner);
        mail_session.send(mail);
        mail_session.end();
    });
    if (sent) close_after_sending(*this);
}

}  // namespace quillomat
