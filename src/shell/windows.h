#pragma once

#include <memory>

#include "common/session.h"
#include "viewer/viewer_windows.h"

namespace quillomat {

class Application;
class frmCtlView;

/// The one place that knows every window of the program: it opens them, owns those that stay open beside others, and
/// ends the program with the last one.
class Windows {
  public:
    Windows(Application& application, Session& session);
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// Opens the cheat viewer, or brings the open one to the front.
    void open_viewer();

  private:
    template <class Window, class... Arguments>
    void open(std::unique_ptr<Window>& place, Arguments&&... arguments);
    void quit_after_last();

    Application& application_;
    Session& session_;
    ViewerWindows viewer_windows_;
    std::unique_ptr<frmCtlView> viewer_;
};

}  // namespace quillomat
