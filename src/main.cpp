#include <cstdlib>
#include <string>

#include "common/session.h"
#include "forms/application.h"
#include "shell/shell.h"
#include "text/command_line.h"
#include "text/product.h"
#include "win/program_folder.h"

// NOLINTNEXTLINE(readability-non-const-parameter): Windows gives the signature.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t* lpCmdLine, int) {
    using namespace quillomat;
    Application application(product::title);
    try {
        Session session;
        session.program_folder = program_folder();
        Shell shell(application, session);
        const std::wstring query = command_line_query(lpCmdLine);
        if (query.empty()) {
            shell.open_splash();
        } else {
            shell.open_viewer_for(query);
        }
        return application.run();
    } catch (...) {
        // No window exists to report a failure, for example because the first one cannot be created.
        application.report_current_exception();
        return EXIT_FAILURE;
    }
}
