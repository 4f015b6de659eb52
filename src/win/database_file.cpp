#include "win/database_file.h"

namespace quillomat {

void load_catalogue(TextFileSlot& slot, const std::wstring& path, Catalogue& catalogue,
                    const Catalogue::ListName& list_name) {
    slot.open_for_reading(path);
    catalogue.load(slot.read_all(), list_name);
    slot.close();
}

}  // namespace quillomat
