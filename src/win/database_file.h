#pragma once

#include <string>

#include "database/catalogue.h"
#include "win/text_file.h"

namespace quillomat {

/// Reads a database file into a catalogue. Throws `Error` when the file cannot be opened, and as `Catalogue::load`
/// does; once it was opened, a failure leaves the slot open for the rest of the run.
void load_catalogue(TextFileSlot& slot, const std::wstring& path, Catalogue& catalogue,
                    const Catalogue::ListName& list_name);

}  // namespace quillomat
