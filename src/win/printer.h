#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "text/print_page.h"
#include "win/gdi.h"

namespace quillomat {

/// A device that prints documents page by page. Every started document is either ended or aborted.
class PrintDevice {
  public:
    virtual ~PrintDevice() = default;

    /// Begins a document, which the print queue shows under `name`. Throws `Error`, like the other functions.
    virtual void start_document(const std::wstring& name) = 0;
    /// Begins a page and returns the canvas to draw it on. The device owns the canvas.
    virtual HDC start_page() = 0;
    virtual void end_page() = 0;
    /// Hands the document to the printer.
    virtual void end_document() = 0;
    /// Cancels the document; nothing more of it is printed.
    virtual void abort_document() noexcept = 0;
};

/// The user's default printer.
class DefaultPrinter final : public PrintDevice {
  public:
    /// Throws `Error` with PrinterError if there is no default printer or it cannot be used.
    DefaultPrinter();
    ~DefaultPrinter() override;
    DefaultPrinter(const DefaultPrinter&) = delete;
    DefaultPrinter& operator=(const DefaultPrinter&) = delete;

    /// Throws `Error`: Cancelled if the user cancels the dialog of a driver that prints to a file, DiskFull,
    /// OutOfMemory, or PrinterError for everything else.
    void start_document(const std::wstring& name) override;
    HDC start_page() override;
    void end_page() override;
    void end_document() override;
    void abort_document() noexcept override;

  private:
    std::wstring name_;
    HDC canvas_;
};

/// Opens the printer for a window. Tests supply another device.
using PrinterFactory = std::function<std::unique_ptr<PrintDevice>()>;

/// Throws as the constructor of `DefaultPrinter` does.
std::unique_ptr<PrintDevice> open_default_printer();

/// A document that is being printed. Text flows from a print position down the page and on to further pages. Positions
/// are in twips from the upper left corner of the printable area, so that nothing is cut off.
///
/// Every function throws what the device throws, and `Error` with PrinterError if drawing fails. A job that is
/// destroyed before its `end` prints nothing.
class PrintJob {
  public:
    /// Starts a document on a device, which must outlive the job.
    PrintJob(PrintDevice& device, const std::wstring& document_name);
    ~PrintJob();
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// Sets where the next line of text begins, in twips. The first line of each further page begins there, too.
    void set_position(double left, double top);
    /// Prints the lines of a text from the print position on, and moves the position below them. A line that is too
    /// wide for the page is broken.
    void print(std::wstring_view text);

    /// Sets the width of drawn lines, in dots of the printer.
    void set_line_width(int dots) { line_width_ = dots; }
    /// Draws a line on the current page, in twips; the print position stays.
    void draw_line(double left, double top, double right, double bottom);

    /// Hands the document to the printer.
    void end();

  private:
    void start_page();
    void end_page();
    void print_line(const std::wstring& line);
    std::size_t fitting_length(std::wstring_view text) const;
    int dots_across(double twips) const;
    int dots_down(double twips) const;
    void abort() noexcept;

    PrintDevice& device_;
    HDC canvas_ = nullptr;  // null outside of a page
    HGDIOBJ former_font_ = nullptr;
    GdiObject<HFONT> font_;
    LineFlow flow_{0, 0};
    int left_ = 0;
    int line_width_ = 1;
    bool ended_ = false;
};

}  // namespace quillomat
