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

/// The only class that knows every window of the program. Opens the windows, owns the modeless ones, and ends the
/// program when the last of them has closed.
class Shell {
  public:
    Shell(Application& application, Session& session);
    ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    // Each function opens its window, or brings the window to the front if it is open.
    void open_splash();
    void open_main_screen();
    /// Opens the loading window, which opens the viewer.
    void open_loading_window();
    void open_viewer();
    /// Opens the viewer at a game or a search, see `frmCtlView::look_up`.
    void open_viewer_for(const std::wstring& query);
    /// Opens the message to the author.
    void open_author_mail();

  private:
    template <class Window, class... Arguments>
    void open(std::unique_ptr<Window>& place, Arguments&&... arguments);
    // Dialogs: each function returns when its dialog has closed. Those of the viewer need the viewer to be open.
    void open_about();
    void open_author_dialog();
    void open_add_game();
    void open_save();
    void open_mail_cheats();
    void open_print_list();
    /// Opens the modeless find dialog for the viewer's text.
    void open_find();
    void restore_main_screen();
    void quit_after_last();

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
