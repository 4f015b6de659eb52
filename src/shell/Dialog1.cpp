#include "shell/Dialog1.h"

#include <string_view>

#include "common/open_link.h"
#include "forms/application.h"
#include "resources/pictures.h"
#include "text/author_links.h"
#include "text/product.h"
#include "win/animation_setting.h"

namespace quillomat {
namespace {

constexpr wchar_t title[] = L"about the author - tobin ferrand";
constexpr DWORD pause_between_steps = 5;  // milliseconds
constexpr double inner_width_designed = 5910;
constexpr double frame_height = 375;  // the share of the title bar and the frame in `author_dialog_height`

}  // namespace

Dialog1::Dialog1(Application& application, PointerState& pointer)
    : Form(application, {.name = L"Dialog1", .caption = title, .border = FormBorder::Dialog}),
      picSpin(PICTURE_COIN),
      Picture1{Picture(PICTURE_QUILL_FIRST), Picture(PICTURE_QUILL_FIRST + 1), Picture(PICTURE_QUILL_FIRST + 2)},
      picCopy(*this, picSpin, L"A coin that turns", {240, 240, 2340, 2340}, PictureBox::Edge::Thin),
      Label1(*this, product::author, {2835, 795, 2835, 420}),
      pointer_(pointer) {
    set_inner_size(inner_width_designed, author_dialog_height - frame_height);
    picCopy.set_back_colour(colours::white);
    picCopy.set_tool_tip(L"Cool, eh?");
    Label1.set_font({.points = 16, .bold = true});
    Text1.set_text(std::wstring(product::mail_address) + L"\r\n" + product::web_site);
    cmdButton[1].set_visible(false);
    set_links_visible(false);
    show_icon();
    set_default_button(&cmdButton[2]);
    set_cancel_button(&cmdButton[2]);
    cmdButton[0].set_focus();
    bind();
    bind_links();
    bind_hover_help();
}

void Dialog1::bind() {
    on_load = [this] { Form_Load(); };
    on_resize = [this] { show_icon(); };
    Text1.on_double_click = [this] { Text1_DblClick(); };
    cmdButton[0].on_click = [this] { Expand(); };
    cmdButton[1].on_click = [this] { Contract(); };
    cmdButton[2].on_click = [this] { close(); };
    Timer1.on_timer = [this] { Timer1_Timer(); };
    Timer2.on_timer = [this] { Timer2_Timer(); };
    Timer4.on_timer = [this] { Timer4_Timer(); };
}

void Dialog1::bind_links() {
    Label3.on_click = [this] { OpenLink(*this, web_site_link()); };
    Label4.on_click = [this] { OpenLink(*this, product::mailing_list_page); };
    Label5.on_click = [this] { OpenLink(*this, guestbook_link()); };
    Label6.on_click = [this] { OpenLink(*this, mail_link()); };
    Label8.on_click = [this] { OpenLink(*this, downloads_link()); };
}

void Dialog1::bind_hover_help() {
    hover_help_.add(cmdButton[0], L"Click here to see the links to my pages");
    hover_help_.add(cmdButton[1], L"Click here to hide the links again");
    hover_help_.add(cmdButton[2], L"Click here to go back to the main screen");
    hover_help_.keep_above_pointer();
    hover_help_.pass_focus_to(cmdButton[2]);
    Timer3.on_timer = [this] { hover_help_.tick(); };
}

void Dialog1::Form_Load() {
    centre_on_screen();
    if (!animations_wanted()) {
        for (Timer* timer : {&Timer1, &Timer2, &Timer4}) timer->set_enabled(false);
    }
}

void Dialog1::set_links_visible(bool visible) {
    for (Link* link : {&Label3, &Label4, &Label5, &Label6, &Label8}) link->set_visible(visible);
}

void Dialog1::resize(std::optional<double> (*next_height)(double)) {
    const bool animated = animations_wanted();
    while (const auto next = next_height(exact_height_)) {
        exact_height_ = *next;
        if (!animated) continue;
        set_inner_size(inner_width_designed, exact_height_ - frame_height);
        paint_changes();
        Sleep(pause_between_steps);
    }
    set_inner_size(inner_width_designed, exact_height_ - frame_height);
}

void Dialog1::Expand() {
    cmdButton[1].set_visible(true);
    if (cmdButton[0].has_focus()) cmdButton[1].set_focus();
    cmdButton[0].set_visible(false);
    set_links_visible(true);
    resize(next_expanded_height);
    place_on_screen();
}

void Dialog1::Contract() {
    cmdButton[0].set_visible(true);
    if (cmdButton[1].has_focus()) cmdButton[0].set_focus();
    cmdButton[1].set_visible(false);
    resize(next_contracted_height);
    // Links below the edge of the window must not take the focus.
    set_links_visible(false);
}

void Dialog1::Text1_DblClick() {
    if (const auto link = link_of_address(Text1.selected_text())) OpenLink(*this, *link);
}

void Dialog1::Timer1_Timer() {
    constexpr std::wstring_view whole = title;
    capital_ = next_capital(capital_, whole.size());
    set_caption(with_capital(whole, capital_, Text1.text().size()));
}

void Dialog1::Timer2_Timer() {
    turn_ = next_turn(turn_);
    picCopy.set_width_factor(turned_width(*turn_));
}

void Dialog1::Timer4_Timer() {
    icon_ = next_icon(icon_);
    show_icon();
}

void Dialog1::show_icon() {
    const auto show = [this](WPARAM kind, int metric) {
        const int size = GetSystemMetricsForDpi(metric, static_cast<UINT>(dpi()));
        // Load each icon only once.
        Icon& icon = icons_[{Picture1[icon_], size}];
        if (!icon) icon = Picture1[icon_].icon(size);
        const auto handle = reinterpret_cast<LPARAM>(icon.get());
        // Setting an icon redraws the title bar, even if the window has that icon already.
        if (SendMessageW(window(), WM_GETICON, kind, 0) == handle) return;
        SendMessageW(window(), WM_SETICON, kind, handle);
    };
    show(ICON_SMALL, SM_CXSMICON);
    show(ICON_BIG, SM_CXICON);
}

}  // namespace quillomat
