#include "viewer/frmStatus.h"

#include "forms/message_box.h"

namespace quillomat {

frmStatus::frmStatus(Application& application, const Form& viewer)
    : Form(application, {.name = L"frmStatus",
                         .caption = L"Progress...",
                         .width = 9105,
                         .height = 990,
                         .border = FormBorder::Dialog}) {
    set_owner(viewer);
    set_inner_size(full_progress_bar + 2 * Shape2.left(), Shape2.height() + 2 * Shape2.top());
    Shape1.set_border_colour(colours::highlight);
    Shape1.set_fill_colour(colours::highlight);
    Shape2.set_border_colour(colours::grey_text);
    on_key_down = [this](KeyEvent& event) { Form_KeyDown(event); };
}

void frmStatus::begin_collecting() {
    GoingOn = true;
    Shape1.set_width(0);
    Shape1.set_visible(true);
    Shape2.set_visible(true);
    set_closable(false);
    started_ = Clock::now();
}

void frmStatus::show_progress(int collected, int count) {
    const CollectionProgress progress = collection_progress(collected, count);
    Shape1.set_width(progress.bar_width);
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - started_);
    set_caption(collection_caption(progress.percent, static_cast<int>(seconds.count())));
}

void frmStatus::set_closable(bool closable) {
    EnableMenuItem(GetSystemMenu(window(), FALSE), SC_CLOSE, closable ? MF_ENABLED : MF_GRAYED);
}

void frmStatus::end_collecting() {
    set_caption(L"Please wait...");
    set_closable(true);
    paint_changes();
}

void frmStatus::Form_KeyDown(KeyEvent& event) {
    if (event.key != keys::f10) return;
    event.handled = true;
    const Clock::time_point asked = Clock::now();
    const auto answer = show_message(*this, {.text = L"Are you sure you want to cancel collecting the fonts?",
                                             .title = L"Sure?",
                                             .buttons = MessageButtons::YesNo});
    if (answer == MessageAnswer::Yes) GoingOn = false;
    // The time the user took to answer does not count.
    started_ += Clock::now() - asked;
}

}  // namespace quillomat
