// One of the program's windows as the first one, so that its start and what it costs can be looked at from outside:
// open_window viewer|splash|main|about|author FOLDER
// FOLDER is what is the program's own folder else, with the database in it. Says "shown" when the window is.

#include <cstdio>
#include <string_view>

#include "common/session.h"
#include "forms/application.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/windows.h"

namespace quillomat::bench {
namespace {

int say_shown_and_run(Application& application) {
    application.let_pending_events_run();
    std::printf("shown\n");
    std::fflush(stdout);
    return application.run();
}

int run(std::wstring_view window, const wchar_t* folder) {
    Application application(L"Quillomat");
    Session session;
    session.program_folder = folder;
    session.settings = Settings(L"QuillomatBench");
    Windows windows(application, session);
    if (window == L"about") {
        frmAbout about(application, session.pointer, 10);
        about.show();
        return say_shown_and_run(application);
    }
    if (window == L"author") {
        Dialog1 author(application, session.pointer);
        author.show();
        return say_shown_and_run(application);
    }
    if (window == L"viewer") {
        windows.open_viewer();
    } else if (window == L"main") {
        windows.open_main_screen();
    } else {
        windows.open_splash();
    }
    return say_shown_and_run(application);
}

}  // namespace
}  // namespace quillomat::bench

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    return quillomat::bench::run(arguments[1], arguments[2]);
}
