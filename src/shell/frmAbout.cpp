#include "shell/frmAbout.h"

#include "common/open_link.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "resources/pictures.h"
#include "text/author_links.h"
#include "text/product.h"
#include "win/animation_setting.h"
#include "win/system_information.h"

namespace quillomat {
namespace {

// The size inside the border.
constexpr double design_width = 5910;
constexpr double design_height = 3945;

}  // namespace

frmAbout::frmAbout(Application& application, PointerState& pointer, std::int16_t start_up_times)
    : Form(application, {.name = L"frmAbout",
                         .caption = L"About Quillomat",
                         .width = design_width,
                         .height = design_height,
                         .border = FormBorder::Dialog}),
      StartUpTimes(start_up_times),
      picIcon(*this, Picture(PICTURE_APPLICATION), L"Quillomat", {240, 240, 720, 720}),
      lblVersion(*this, std::wstring(L"Version ") + product::version, {1230, 795, 4440, 225}),
      lblDescription(*this,
                     L"This program costs nothing. Pass it on to all of your friends, as long as you change nothing "
                     L"about it.",
                     {1230, 1065, 4440, 450}),
      Label2(*this, std::wstring(L"&Website - ") + product::web_site, 240, 2400),
      lblDisclaimer(*this, std::wstring(L"&E-mail - ") + product::mail_address, 240, 2730),
      pointer_(pointer) {
    for (Label* label : {&Label4, &Label3, &Label1}) {
        label->set_alignment(Alignment::Centre);
        label->set_font({.points = 12, .bold = true});
    }
    picIcon.set_tool_tip(L"Double-click to start the Easter egg!");
    show_title(title_points_);
    set_default_button(&cmdButton[0]);
    set_cancel_button(&cmdButton[0]);
    cmdButton[0].set_focus();
    bind();
    bind_hover_help();
}

void frmAbout::bind() {
    on_load = [this] { Form_Load(); };
    on_mouse_up = [this](const MouseEvent& event) {
        if (event.button == MouseButton::Right) mnuBox.pop_up();
    };
    Label4.on_mouse_down = [this](const MouseEvent&) { emboss(EmbossStyle::PressedIn); };
    Label4.on_mouse_up = [this](const MouseEvent&) { emboss(EmbossStyle::Raised); };
    Label4.on_click = [this] { Label4_Click(); };
    Label2.on_click = [this] { OpenLink(*this, web_site_link()); };
    lblDisclaimer.on_click = [this] {
        mnuMail.pop_up(lblDisclaimer.left(), lblDisclaimer.top() + lblDisclaimer.height());
    };
    cmdButton[0].on_click = [this] { close(); };
    cmdButton[1].on_click = [this] { StartSysInfo(); };
    mnuMailMe.on_click = [this] { mnuMailMe_Click(); };
    mnuDefaultMail.on_click = [this] { OpenLink(*this, mail_link()); };
    mnuOK.on_click = [this] { close(); };
    Timer1.on_timer = [this] { Timer1_Timer(); };
    Timer2.on_timer = [this] { Timer2_Timer(); };
}

void frmAbout::bind_hover_help() {
    hover_help_.add(cmdButton[0], L"Click here to go back to the main screen");
    hover_help_.add(cmdButton[1], L"Click here to start MS System Info");
    hover_help_.keep_above_pointer();
    hover_help_.pass_focus_to(cmdButton[0]);
    Timer3.on_timer = [this] { hover_help_.tick(); };
}

void frmAbout::Form_Load() {
    set_inner_size(design_width, design_height);
    centre_on_screen();
    lblTitle.set_caption(application().title());
    Label4.set_caption(L"You have run Quillomat " + std::to_wstring(StartUpTimes) + L" times.");
    SpokenRunCount.set_caption(Label4.caption());
    CenterMouseOn(cmdButton[0].window());
    emboss(EmbossStyle::Raised);
    if (!animations_wanted()) Timer2.set_enabled(false);
}

void frmAbout::emboss(EmbossStyle style) {
    EmbossLabel(Label4, Label3, Label1, Label4.caption(), style, {1}, 1);
}

void frmAbout::Label4_Click() {
    show_message(*this,
                 {.text = L"Why did you click me?", .title = application().title(), .icon = MessageIcon::Question});
}

void frmAbout::show_title(double points) {
    title_points_ = points;
    lblTitle.set_font({.points = points, .bold = true});
}

void frmAbout::Timer2_Timer() {
    if (const auto points = next_shrinking_title(title_points_)) {
        show_title(*points);
    } else {
        Timer2.set_enabled(false);
        Timer1.set_enabled(true);
    }
}

void frmAbout::Timer1_Timer() {
    if (const auto points = next_growing_title(title_points_)) {
        show_title(*points);
    } else {
        Timer1.set_enabled(false);
        Timer2.set_enabled(true);
    }
}

void frmAbout::mnuMailMe_Click() {
    next_ = Next::MessageToAuthor;
    close();
}

void frmAbout::StartSysInfo() {
    const auto tool = system_information_tool();
    if (tool && start_program(*tool)) return;
    show_message(*this, {.text = L"System Information Is Unavailable At This Time", .title = application().title()});
}

}  // namespace quillomat
