#include "metafile_printer.h"

#include <utility>

namespace quillomat {
namespace {

struct Reading {
    Printed::Page page;
    POINT position{};
    int pen_width = 0;
};

int CALLBACK read_record(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM target) {
    auto& reading = *reinterpret_cast<Reading*>(target);
    switch (record->iType) {
        case EMR_EXTTEXTOUTW: {
            const auto& text = *reinterpret_cast<const EMREXTTEXTOUTW*>(record);
            const auto* characters =
                reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(record) + text.emrtext.offString);
            reading.page.texts.push_back({text.emrtext.ptlReference.x, text.emrtext.ptlReference.y,
                                          std::wstring(characters, text.emrtext.nChars)});
            break;
        }
        case EMR_CREATEPEN:
            reading.pen_width = reinterpret_cast<const EMRCREATEPEN*>(record)->lopn.lopnWidth.x;
            break;
        case EMR_MOVETOEX: {
            const auto& point = reinterpret_cast<const EMRMOVETOEX*>(record)->ptl;
            reading.position = {point.x, point.y};
            break;
        }
        case EMR_LINETO: {
            const auto& point = reinterpret_cast<const EMRLINETO*>(record)->ptl;
            reading.page.rules.push_back({reading.position, {point.x, point.y}, reading.pen_width});
            break;
        }
    }
    return 1;
}

}  // namespace

std::vector<std::wstring> Printed::lines() const {
    std::vector<std::wstring> lines;
    for (const Page& page : pages) {
        for (const Text& text : page.texts) lines.push_back(text.text);
    }
    return lines;
}

HDC MetafilePrinter::start_page() {
    canvas_ = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    return canvas_;
}

void MetafilePrinter::end_page() {
    const HENHMETAFILE page = CloseEnhMetaFile(std::exchange(canvas_, nullptr));
    Reading reading;
    EnumEnhMetaFile(nullptr, page, read_record, &reading, nullptr);
    DeleteEnhMetaFile(page);
    if (printed_.pages.size() + 1 == printed_.fails_at_page) throw Error(printed_.failure);
    printed_.pages.push_back(std::move(reading.page));
}

void MetafilePrinter::abort_document() noexcept {
    if (canvas_) DeleteEnhMetaFile(CloseEnhMetaFile(std::exchange(canvas_, nullptr)));
    ++printed_.documents_aborted;
}

}  // namespace quillomat
