#pragma once

#include <memory>
#include <string>

#include "common/session.h"
#include "shell/main_windows.h"
#include "viewer/viewer_windows.h"

namespace quillomat {

class Application;
class frmCtlView;
class frmFind;
class frmMailMe;
class frmMain;
class frmSplash;
class frmWait;

/// The one place that knows every window of the program: it opens them, owns those that stay open beside others, and
/// ends the program with the last one.
class Windows {
  public:
    Windows(Application& application, Session& session);
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    // Each opens its window, or brings the open one to the front.
    void open_splash();
    void open_main_screen();
    /// The loading window, which opens the viewer.
    void open_loading_window();
    void open_viewer();
    /// Opens the viewer with the answer to a question: see `frmCtlView::look_up`.
    void open_viewer_for(const std::wstring& question);
    /// Opens the message to the author, or brings the open one to the front.
    void open_author_mail();

  private:
    template <class Window, class... Arguments>
    void open(std::unique_ptr<Window>& place, Arguments&&... arguments);
    // Dialogs of the main screen: they return when they have closed.
    void open_about();
    void open_author();
    void restore_main_screen();
    void open_add_game();
    void open_save();
    /// Opens the find dialog for the viewer's text, or brings it to the front.
    void open_find();
    void quit_after_last();
    void mail_cheats();
    void show_print_list();

    Application& application_;
    Session& session_;
    MainWindows main_windows_;
    ViewerWindows viewer_windows_;
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<frmMain> main_screen_;
    std::unique_ptr<frmWait> loading_window_;
    std::unique_ptr<frmCtlView> viewer_;
    std::unique_ptr<frmFind> find_;
    std::unique_ptr<frmMailMe> author_mail_;
};

}  // namespace quillomat
