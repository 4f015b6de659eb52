#include <cstdlib>
#include <string>

#include "common/session.h"
#include "forms/application.h"
#include "shell/windows.h"
#include "text/product.h"
#include "text/question.h"
#include "win/program_folder.h"

// NOLINTNEXTLINE(readability-non-const-parameter): Windows gives the signature.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t* lpCmdLine, int) {
    using namespace quillomat;
    Application application(product::title);
    try {
        Session session;
        session.program_folder = program_folder();
        Windows windows(application, session);
        const std::wstring question = question_of(lpCmdLine);
        if (question.empty()) {
            windows.open_splash();
        } else {
            windows.open_viewer_for(question);
        }
        return application.run();
    } catch (...) {
        // No window exists to report a failure, for example because the first one cannot be created.
        application.report_current_exception();
        return EXIT_FAILURE;
    }
}
