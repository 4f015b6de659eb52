#pragma once

#include <string>
#include <vector>

#include "text/error.h"
#include "win/printer.h"

namespace quillomat {

/// What a test's printer was given.
struct Printed {
    std::wstring document;
    /// The lines of each page.
    std::vector<std::vector<std::wstring>> pages;
    int documents_ended = 0;
    int documents_aborted = 0;
    /// The page at whose end there is an error; 0 for none.
    std::size_t fails_at_page = 0;
    ErrorCode failure = ErrorCode::PrinterError;
};

/// A printer whose pages are metafiles that are read back. They have the screen's size and resolution.
class MetafilePrinter final : public PrintDevice {
  public:
    explicit MetafilePrinter(Printed& printed) : printed_(printed) {}

    void start_document(const std::wstring& name) override { printed_.document = name; }
    HDC start_page() override;
    void end_page() override;
    void end_document() override { ++printed_.documents_ended; }
    void abort_document() noexcept override;

  private:
    Printed& printed_;
    HDC canvas_ = nullptr;
};

}  // namespace quillomat
