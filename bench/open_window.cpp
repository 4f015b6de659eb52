// One of the program's windows as the first one, to be looked at from outside: open_window WINDOW FOLDER
// FOLDER holds the database. Prints a line when the window is shown.

#include <cstdio>

#include "common/session.h"
#include "forms/application.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/windows.h"

int wmain(int, wchar_t** arguments) {
    using namespace quillomat;
    const std::wstring_view name = arguments[1];
    Application application(L"Quillomat");
    Session session;
    session.program_folder = arguments[2];
    session.settings = Settings(L"QuillomatBench");
    Windows windows(application, session);
    frmAbout about(application, session.pointer, 10);
    Dialog1 author(application, session.pointer);
    if (name == L"about") about.show();
    if (name == L"author") author.show();
    if (name == L"viewer") windows.open_viewer();
    if (name == L"main") windows.open_main_screen();
    if (name == L"splash") windows.open_splash();
    application.let_pending_events_run();
    std::puts("shown");
    std::fflush(stdout);
    return application.run();
}
