// Opens one of the program's windows and prints a line when the window is visible:
// open_window WINDOW FOLDER_OF_THE_DATABASE

#include <cstdio>
#include <memory>

#include "common/session.h"
#include "forms/application.h"
#include "shell/Dialog1.h"
#include "shell/frmAbout.h"
#include "shell/shell.h"

int wmain(int, wchar_t** arguments) {
    using namespace quillomat;
    const std::wstring_view name = arguments[1];
    Application application(L"Quillomat");
    Session session;
    session.program_folder = arguments[2];
    session.settings = Settings(L"QuillomatBench");
    Shell shell(application, session);
    std::unique_ptr<Form> dialog;
    if (name == L"about") dialog = std::make_unique<frmAbout>(application, session.pointer, 10);
    if (name == L"author") dialog = std::make_unique<Dialog1>(application, session.pointer);
    if (dialog) dialog->show();
    if (name == L"viewer") shell.open_viewer();
    if (name == L"main") shell.open_main_screen();
    if (name == L"splash") shell.open_splash();
    application.let_pending_events_run();
    std::puts("shown");
    std::fflush(stdout);
    return application.run();
}
