#include "shell/shell.h"

#include <utility>

#include "common/open_link.h"
#include "forms/application.h"
#include "output/frmAddNew.h"
#include "output/frmMailCheats.h"
#include "output/frmMailMe.h"
#include "output/frmPrintGames.h"
#include "output/frmSave.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/frmWait.h"
#include "shell/open_viewer.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmFind.h"

namespace quillomat {

Shell::Shell(Application& application, Session& session) : application_(application), session_(session) {
    main_windows_.cheats = [this] { open_loading_window(); };
    main_windows_.mail_author = [this] { open_author_mail(); };
    main_windows_.about = [this] { open_about(); };
    main_windows_.about_author = [this] { open_author_dialog(); };
    main_windows_.link = [this](const std::wstring& address) { OpenLink(*main_screen_, address); };
    main_windows_.close_all = [this] { application_.close_all_forms(); };
    viewer_windows_.restore_main_screen = [this] { restore_main_screen(); };
    viewer_windows_.mail_cheats = [this] { open_mail_cheats(); };
    viewer_windows_.mail_author = [this](const std::wstring& text) {
        open_author_mail();
        if (author_mail_) author_mail_->propose_message(text);
    };
    viewer_windows_.add_game = [this] { open_add_game(); };
    viewer_windows_.save = [this] { open_save(); };
    viewer_windows_.print_list = [this] { open_print_list(); };
    viewer_windows_.find = [this] { open_find(); };
}

Shell::~Shell() = default;

template <class Window, class... Arguments>
void Shell::open(std::unique_ptr<Window>& place, Arguments&&... arguments) {
    if (place) {
        if (place->window_state() == WindowState::Minimised) place->set_window_state(WindowState::Normal);
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

void Shell::open_splash() {
    open(splash_, [this] { open_main_screen(); });
}

void Shell::open_main_screen() {
    open(main_screen_, session_, main_windows_);
}

void Shell::open_loading_window() {
    open(loading_window_, [this] { open_viewer(); });
}

void Shell::open_viewer() {
    open(viewer_, session_, viewer_windows_);
}

void Shell::open_viewer_for(const std::wstring& query) {
    open_viewer();
    if (viewer_->window_state() == WindowState::Minimised) viewer_->set_window_state(WindowState::Normal);
    viewer_->guarded([&] {
        viewer_->look_up(query);
        return LRESULT{};
    });
}

void Shell::restore_main_screen() {
    // If the viewer closes together with the main screen, restoring the main screen would make it flash up.
    if (main_screen_ && !main_screen_->closed() && main_screen_->window_state() == WindowState::Minimised) {
        main_screen_->set_window_state(WindowState::Normal);
    }
}

void Shell::open_author_mail() {
    open(author_mail_, session_);
}

void Shell::open_mail_cheats() {
    OpenViewer link(*viewer_);
    frmMailCheats(application_, session_, link).show_modal(viewer_.get());
}

void Shell::open_add_game() {
    OpenViewer link(*viewer_);
    frmAddNew(application_, session_, link).show_modal(viewer_.get());
}

void Shell::open_save() {
    OpenViewer link(*viewer_);
    frmSave(application_, session_, link).show_modal(nullptr);
}

void Shell::open_about() {
    frmAbout about(application_, session_.pointer, session_.StartUpTimes);
    about.show_modal(main_screen_.get());
    if (about.next() == frmAbout::Next::MessageToAuthor) open_author_mail();
}

void Shell::open_author_dialog() {
    Dialog1(application_, session_.pointer).show_modal(main_screen_.get());
}

void Shell::open_print_list() {
    OpenViewer link(*viewer_);
    frmPrintGames(application_, session_, link).show_modal(viewer_.get());
}

void Shell::open_find() {
    open(find_, session_.find, *viewer_, viewer_->Text1);
    find_->txtFind.set_focus();
}

void Shell::quit_after_last() {
    if (!splash_ && !main_screen_ && !loading_window_ && !viewer_ && !author_mail_) application_.quit();
}

}  // namespace quillomat
