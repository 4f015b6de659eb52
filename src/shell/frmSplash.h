#pragma once

#include <cstdint>
#include <deque>
#include <functional>

#include "controls/graphics.h"
#include "controls/static_label.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "resources/pictures.h"
#include "shell/backdrop.h"
#include "text/product.h"

namespace quillomat {

/// The first window: a band of light sweeps over the product's name, the version slides in, and a motto is shown. The
/// splash stays until the user clicks on it or presses a key.
class frmSplash final : public Form {
  public:
    /// `show_main_screen` opens the window that follows the splash.
    frmSplash(Application& application, std::function<void()> show_main_screen);

    static constexpr double design_width = 7005;
    static constexpr double design_height = 4200;

    Backdrop Background{*this, PICTURE_SPLASH, {0, 0, design_width, design_height}};
    /// The letters of the product's name.
    std::deque<Label> Label1;
    Label Label2{*this, product::version, {0, 2070, 600, 360}};
    Label Label3{*this, L"By Tobin Ferrand (Tob)", {540, 2070, 3300, 360}};
    Label Label4{*this, L"Click screen to continue ", {660, 3915, 2700, 270}};
    Label Label6{*this, L"What's the point if you can't cheat?", {540, 2475, 4500, 540}};
    /// Version and motto for screen readers, which cannot see painted text. A label without a size is invisible.
    StaticLabel Spoken{*this, {}, {}};
    Timer Timer1{*this, 75};
    Timer Timer2{*this, 35};

  private:
    void make_letters();
    void place_letters();
    void go_on_when_clicked(MouseEvents& item);

    void Form_Load();
    void Timer1_Timer();
    void Timer2_Timer();
    void Proceed();

    std::function<void()> show_main_screen_;
    std::int16_t band_step_ = 0;
    double version_left_ = 0;  // in twips, not rounded to pixels
};

}  // namespace quillomat
