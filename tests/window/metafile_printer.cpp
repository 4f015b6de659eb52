#include "metafile_printer.h"

#include <utility>

namespace quillomat {
namespace {

int CALLBACK read_record(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM page) {
    if (record->iType != EMR_EXTTEXTOUTW) return 1;
    const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
    const auto* characters = reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(record) + text.offString);
    reinterpret_cast<std::vector<std::wstring>*>(page)->emplace_back(characters, text.nChars);
    return 1;
}

}  // namespace

HDC MetafilePrinter::start_page() {
    canvas_ = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    return canvas_;
}

void MetafilePrinter::end_page() {
    const HENHMETAFILE metafile = CloseEnhMetaFile(std::exchange(canvas_, nullptr));
    std::vector<std::wstring> page;
    EnumEnhMetaFile(nullptr, metafile, read_record, &page, nullptr);
    DeleteEnhMetaFile(metafile);
    if (printed_.pages.size() + 1 == printed_.fails_at_page) throw Error(printed_.failure);
    printed_.pages.push_back(std::move(page));
}

void MetafilePrinter::abort_document() noexcept {
    if (canvas_) DeleteEnhMetaFile(CloseEnhMetaFile(std::exchange(canvas_, nullptr)));
    ++printed_.documents_aborted;
}

}  // namespace quillomat
