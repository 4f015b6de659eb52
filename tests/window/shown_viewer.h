#pragma once

#include <memory>
#include <string>

#include "common/session.h"
#include "shell/viewer_link.h"
#include "support.h"
#include "temporary.h"
#include "viewer/frmCtlView.h"
#include "win/code_page.h"

namespace quillomat {

/// A database in a folder of its own, opened in a real viewer, for the windows that work on what the viewer shows.
class ShownViewerTest : public WindowTest {
  protected:
    ShownViewerTest() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
    }

    void open_viewer(std::string_view database) {
        write("Cheats.dat", database);
        open_viewer();
    }
    /// Opens the viewer on what is in the folder.
    void open_viewer() {
        viewer = std::make_unique<frmCtlView>(application, session, viewer_windows);
        link = std::make_unique<OpenViewer>(*viewer);
        viewer->on_closed = [this] { viewer.reset(); };
        viewer->show();
        pump();
    }
    bool viewer_closes() {
        return pump_until([this] { return !viewer; });
    }

    /// Opens the file as the next run of the program does.
    void read_again() {
        viewer.reset();
        session.catalogue.load(decode(bytes("Cheats.dat")), [](std::wstring_view) {});
    }

    void write(const std::filesystem::path& name, std::string_view bytes) const { folder.write(name, bytes); }
    std::string bytes(const std::filesystem::path& name) const { return folder.read(name); }

    TemporaryFolder folder;
    TemporarySettings registry;
    Session session;
    ViewerWindows viewer_windows;
    std::unique_ptr<frmCtlView> viewer;
    std::unique_ptr<OpenViewer> link;
};

}  // namespace quillomat
