#include "shell/windows.h"

#include <utility>

#include "forms/application.h"
#include "viewer/frmCtlView.h"

namespace quillomat {

Windows::Windows(Application& application, Session& session) : application_(application), session_(session) {}

Windows::~Windows() = default;

template <class Window, class... Arguments>
void Windows::open(std::unique_ptr<Window>& place, Arguments&&... arguments) {
    if (place) {
        place->bring_to_foreground();
        return;
    }
    place = std::make_unique<Window>(application_, std::forward<Arguments>(arguments)...);
    place->on_closed = [this, &place] {
        place.reset();
        quit_after_last();
    };
    place->show();
}

void Windows::open_viewer() {
    open(viewer_, session_, viewer_windows_);
}

void Windows::quit_after_last() {
    if (!viewer_) application_.quit();
}

}  // namespace quillomat
