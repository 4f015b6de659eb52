#include <cstdlib>

#include "common/session.h"
#include "forms/application.h"
#include "shell/windows.h"
#include "text/product.h"
#include "win/program_folder.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    using namespace quillomat;
    Application application(product::title);
    try {
        Session session;
        session.program_folder = program_folder();
        Windows windows(application, session);
        windows.open_splash();
        return application.run();
    } catch (...) {
        // What fails before there is a window to report it, such as a first window that cannot be made.
        application.report_current_exception(nullptr);
        return EXIT_FAILURE;
    }
}
