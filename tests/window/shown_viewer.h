#pragma once

#include <memory>

#include "session_support.h"
#include "shell/open_viewer.h"
#include "viewer/frmCtlView.h"

namespace quillomat {

/// A database in a folder of its own, opened in a real viewer, for the windows that work on what the viewer shows.
struct ShownViewerTest : SessionTest {
    void open_viewer(std::string_view database) {
        write("Cheats.dat", database);
        open_viewer();
    }
    /// Opens the viewer on what is in the folder.
    void open_viewer() {
        open_in(viewer, session, viewer_windows);
        link = std::make_unique<OpenViewer>(*viewer);
    }
    void close_viewer() {
        viewer->close();
        ASSERT_SOON(!viewer);
    }

    ViewerWindows viewer_windows;
    std::unique_ptr<frmCtlView> viewer;
    std::unique_ptr<OpenViewer> link;
};

}  // namespace quillomat
