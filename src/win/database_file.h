#pragma once

#include <string>

#include "database/catalogue.h"
#include "win/text_file.h"

namespace quillomat {

/// Reads a database file into a catalogue. Throws `Error` as `TextFileSlot::open_for_reading`, `TextFileSlot::read_all`
/// and `Catalogue::load` do. A failure after the file was opened leaves the slot open for the rest of the run.
void load_catalogue(TextFileSlot& slot, const std::wstring& path, Catalogue& catalogue,
                    const Catalogue::ListName& list_name);

}  // namespace quillomat
