#include "shell/viewer_link.h"

#include "viewer/frmCtlView.h"

namespace quillomat {

Form& OpenViewer::window() {
    return viewer_;
}

std::wstring OpenViewer::game_name() const {
    return viewer_.caption();
}

std::wstring OpenViewer::cheats() const {
    return viewer_.Text1.text();
}

void OpenViewer::select_game(int number) {
    viewer_.List2.select_index(number);
}

void OpenViewer::select_game(std::wstring_view name) {
    viewer_.List2.select_text(name);
}

void OpenViewer::list_game(std::wstring_view name) {
    viewer_.List2.add(name);
}

}  // namespace quillomat
