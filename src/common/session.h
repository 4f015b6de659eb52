#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "common/pointer.h"
#include "common/settings.h"
#include "database/catalogue.h"
#include "text/find_in_text.h"
#include "win/installed_fonts.h"
#include "win/printer.h"
#include "win/text_file.h"
#include "win/upper_case.h"

namespace quillomat {

/// The state of the viewer that is kept while the viewer is closed.
struct ViewerState {
    std::int16_t open_count = 0;  ///< how often the viewer was opened; the first time reads the database
    std::int16_t game_count = 0;
    std::wstring current_title;    ///< name of the game shown last
    std::wstring search_keyword;   ///< upper-cased text of the last search
    std::int16_t next_letter = 0;  ///< code of the next letter of the alphabet bar
    std::wstring last_jump;        ///< caption of the alphabet bar's label that was clicked last
    int text_steps = 0;            ///< how many points the cheat text is larger than other texts
};

/// State that outlives individual windows. wWinMain owns it and passes it on by reference.
struct Session {
    std::wstring program_folder;  ///< without a trailing separator
    Settings settings;
    std::int16_t StartUpTimes = 0;  ///< runs of the program by this user, this one included
    TextFileSlot text_file;
    Catalogue catalogue{upper_case};
    PointerState pointer;
    std::function<ScreenFonts()> screen_fonts = installed_fonts;
    ViewerState viewer;
    PrinterFactory open_printer = open_default_printer;
    FindState find;
};

}  // namespace quillomat
