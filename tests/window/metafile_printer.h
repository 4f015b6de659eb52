#pragma once

#include <string>
#include <vector>

#include "text/error.h"
#include "win/printer.h"

namespace quillomat {

/// What a test's printer was given.
struct Printed {
    std::wstring document;
    /// The lines of each page; three hyphens stand for a rule.
    std::vector<std::vector<std::wstring>> pages;
    int documents_ended = 0;
    int documents_aborted = 0;
    /// The page at whose end there is an error; 0 for none.
    std::size_t fails_at_page = 0;
};

/// A printer whose pages are metafiles that are read back. They have the screen's size and resolution.
class MetafilePrinter final : public PrintDevice {
  public:
    explicit MetafilePrinter(Printed& printed) : printed_(printed) {}

    void start_document(const std::wstring& name) override { printed_.document = name; }
    HDC start_page() override { return canvas_ = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr); }
    void end_page() override {
        const HENHMETAFILE metafile = CloseEnhMetaFile(canvas_);
        std::vector<std::wstring> page;
        EnumEnhMetaFile(nullptr, metafile, read_record, &page, nullptr);
        DeleteEnhMetaFile(metafile);
        if (printed_.pages.size() + 1 == printed_.fails_at_page) throw Error(ErrorCode::PrinterError);
        printed_.pages.push_back(std::move(page));
    }
    void end_document() override { ++printed_.documents_ended; }
    void abort_document() noexcept override { ++printed_.documents_aborted; }

  private:
    static int CALLBACK read_record(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM page) {
        auto& lines = *reinterpret_cast<std::vector<std::wstring>*>(page);
        if (record->iType == EMR_LINETO) lines.emplace_back(L"---");
        if (record->iType != EMR_EXTTEXTOUTW) return 1;
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
        const auto* characters =
            reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(record) + text.offString);
        lines.emplace_back(characters, text.nChars);
        return 1;
    }

    Printed& printed_;
    HDC canvas_ = nullptr;
};

}  // namespace quillomat
