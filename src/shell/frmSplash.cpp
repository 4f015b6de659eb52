#include "shell/frmSplash.h"

#include <chrono>
#include <random>
#include <string_view>
#include <utility>

#include "forms/application.h"
#include "text/splash_animation.h"
#include "win/animation_setting.h"

namespace quillomat {
namespace {

constexpr const wchar_t* mottoes[] = {
    L"Ah... cheating - can't live with it, can't live without it.",
    L"Life is all about taking the easy way out.",
    L"What's life without a little cheating?",
    L"What's the point if you can't cheat?",
    L"Rufus Quade cheats. Why can't you?",
    L"The key to success in the virtual world",
    L"Don't cheat on yourself... cheat in the games",
    L"Cheating is a way of life... MY way of life.",
};

constexpr Colour letter_colour{0x808080};

// The centre of the sheet of paper in the background, where the name is shown.
constexpr double name_centre_x = 2685;
constexpr double name_centre_y = 1245;

double random_fraction() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto since_midnight = duration_cast<seconds>(now - floor<days>(now));
    std::mt19937 generator(static_cast<unsigned>(since_midnight.count()));
    return std::uniform_real_distribution<double>(0, 1)(generator);
}

}  // namespace

frmSplash::frmSplash(Application& application, std::function<void()> show_main_screen)
    : Form(application, {.name = L"frmSplash",
                         .caption = product::title,
                         .width = design_width,
                         .height = design_height,
                         .border = FormBorder::None}),
      show_main_screen_(std::move(show_main_screen)) {
    make_letters();
    Label2.set_font({.name = L"Arial", .points = 14, .bold = true});
    Label3.set_font({.name = L"Arial", .points = 12});
    Label4.set_font({.name = L"Arial", .points = 8.25});
    Label6.set_font({.name = L"Arial", .points = 10, .italic = true});
    for (Label* label : {&Label2, &Label3, &Label4, &Label6}) {
        label->set_fore_colour(colours::white);
        go_on_when_clicked(*label);
    }
    go_on_when_clicked(*this);
    on_load = [this] { Form_Load(); };
    on_resize = [this] { place_letters(); };
    on_key_down = [this](KeyEvent& event) {
        event.handled = true;
        Proceed();
    };
    Timer1.on_timer = [this] { Timer1_Timer(); };
    Timer2.on_timer = [this] { Timer2_Timer(); };
}

void frmSplash::make_letters() {
    for (const wchar_t letter : std::wstring_view(product::title)) {
        Label& label = Label1.emplace_back(*this, std::wstring(1, letter), Bounds{});
        label.set_font({.name = L"Comic Sans MS", .points = 42});
        label.set_fore_colour(letter_colour);
        go_on_when_clicked(label);
    }
}

void frmSplash::place_letters() {
    double width = 0;
    for (Label& label : Label1) {
        label.fit_to_caption();
        width += label.width();
    }
    double left = name_centre_x - width / 2;
    for (Label& label : Label1) {
        label.set_left(left);
        label.set_top(name_centre_y - label.height() / 2);
        left = label.left() + label.width();
    }
}

void frmSplash::go_on_when_clicked(MouseEvents& item) {
    item.on_click = [this] {
        // The main screen moves the pointer to its largest button, which the second press of a double-click would
        // press.
        application().drop_second_press();
        Proceed();
    };
    item.on_mouse_up = [this](const MouseEvent& event) {
        if (event.button != MouseButton::Left) Proceed();
    };
}

void frmSplash::Form_Load() {
    version_left_ = version_start_left(width());
    if (!animations_wanted()) {
        Timer1.set_enabled(false);
        while (const auto left = next_version_left(version_left_)) version_left_ = *left;
    }
    Label2.set_left(version_left_);
    Label6.set_caption(mottoes[motto_number(random_fraction()) - 1]);
    Spoken.set_caption(L"Version " + Label2.caption() + L". " + Label6.caption());
    band_step_ = 0;
    centre_on_screen();
}

void frmSplash::Timer1_Timer() {
    const LetterBand band = next_letter_band(band_step_, static_cast<int>(Label1.size()));
    band_step_ = static_cast<std::int16_t>(band.step);
    for (std::size_t i = 0; i < Label1.size(); ++i) Label1[i].set_fore_colour(Colour{band.colours[i]});
}

void frmSplash::Timer2_Timer() {
    // Keep the exact position: Label2 rounds it to whole pixels.
    if (const auto left = next_version_left(version_left_)) {
        version_left_ = *left;
        Label2.set_left(version_left_);
    } else {
        Timer2.set_enabled(false);
    }
}

void frmSplash::Proceed() {
    if (closed()) return;
    show_main_screen_();
    close();
}

}  // namespace quillomat
