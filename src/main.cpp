#include "common/session.h"
#include "forms/application.h"
#include "shell/windows.h"
#include "win/program_folder.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    using namespace quillomat;
    Application application(L"Quillomat");
    Session session;
    session.program_folder = program_folder();
    Windows windows(application, session);
    windows.open_splash();
    return application.run();
}
