#include "shell/frmWait.h"

#include <utility>

namespace quillomat {

frmWait::frmWait(Application& application, std::function<void()> show_viewer)
    : Form(application, {.name = L"frmWait",
                         // Invisible without a title bar, but screen readers announce it.
                         .caption = L"Please wait... loading...",
                         .width = 4500,
                         .height = 1200,
                         .border = FormBorder::None}),
      show_viewer_(std::move(show_viewer)) {
    set_back_colour(colours::window);
    Label1.set_fore_colour(colours::window_text);
    Label1.set_font({.points = 11});
    Shape1.set_border_colour(colours::grey_text);
    on_load = [this] {
        centre_on_screen();
        // A key typed ahead must not open a dialog of the main screen, which would make the viewer wait.
        alone_.emplace(this->application(), window());
    };
    on_unload = [this] { alone_.reset(); };
    Timer1.on_timer = [this] { Timer1_Timer(); };
}

void frmWait::Timer1_Timer() {
    Timer1.set_enabled(false);
    // Loading the viewer blocks the message loop, so paint the window now.
    paint_changes();
    try {
        show_viewer_();
    } catch (...) {
        close();
        throw;
    }
    close();
}

}  // namespace quillomat
