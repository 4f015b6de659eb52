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

    /// What the viewer shows on a line of pixels from this place of a window to the right, all that stands on the
    /// viewer included.
    std::vector<COLORREF> colours_from(HWND window, POINT place, int count) const {
        MapWindowPoints(window, viewer->window(), &place, 1);
        const HDC canvas = GetDCEx(viewer->window(), nullptr, DCX_CACHE);
        std::vector<COLORREF> colours;
        for (int x = 0; x < count; ++x) {
            colours.push_back(GetPixel(canvas, place.x + x, place.y));
        }
        ReleaseDC(viewer->window(), canvas);
        return colours;
    }

    ViewerWindows viewer_windows;
    std::unique_ptr<frmCtlView> viewer;
    std::unique_ptr<OpenViewer> link;
};

}  // namespace quillomat
