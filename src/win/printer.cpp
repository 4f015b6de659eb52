#include "win/printer.h"

#include <algorithm>
#include <utility>

#include "text/rounding.h"
#include "text/twips.h"
#include "win/errors.h"
#include "win/system_function.h"
// Needs <windows.h> before it.
#include <winspool.h>

namespace quillomat {
namespace {

// The font of all printed text.
constexpr wchar_t font_name[] = L"Arial";
constexpr double font_points = 10;

// Print queues show a few dozen characters, and some drivers take no more than a path's length.
constexpr std::size_t longest_document_name = 100;

constexpr wchar_t no_printer[] =
    L"No printer is set up. Install or choose a printer in the Windows settings and try again.";

[[noreturn]] void throw_cancelled() {
    throw Error(ErrorCode::PrinterError, L"Printing was cancelled.");
}

// Throws the error that the printing system set last. The system's descriptions for failures of a port or a driver,
// such as "Invalid handle.", mean nothing to a user; the error names the printer instead.
[[noreturn]] void throw_print_error(const std::wstring& printer) {
    const DWORD code = GetLastError();
    if (code == ERROR_CANCELLED || code == ERROR_PRINT_CANCELLED) throw_cancelled();
    const Error error = error_from_code(code);
    if (error.code() == ErrorCode::DiskFull || error.code() == ErrorCode::OutOfMemory) throw Error(error);
    throw Error(ErrorCode::PrinterError,
                L"The document was not printed, or not all of it, because the printer \"" + printer +
                    L"\" could not be reached. Check that it is switched on and connected, and try again.");
}

// Makes a call of the printing system. Throws `Error` if the call reports a failure.
template <class Call>
void printed(const std::wstring& printer, const Call& call) {
    SetLastError(ERROR_SUCCESS);
    const int result = call();
    if (result > 0) return;
    switch (result) {
        case SP_APPABORT:
        case SP_USERABORT:
            throw_cancelled();
        case SP_OUTOFDISK:
            throw Error(ErrorCode::DiskFull);
        case SP_OUTOFMEMORY:
            throw Error(ErrorCode::OutOfMemory);
        default:
            throw_print_error(printer);
    }
}

// Returns the name of the default printer; empty if there is none.
std::wstring default_printer_name() {
    // Wine: the library would make every start of the program 7 ms of 70 longer, and few runs print.
    const auto get_default = system_function<decltype(GetDefaultPrinterW)>(L"winspool.drv", "GetDefaultPrinterW");
    if (!get_default) return {};
    DWORD size = 0;
    get_default(nullptr, &size);
    std::wstring name(size, L'\0');
    if (size == 0 || !get_default(name.data(), &size)) return {};
    name.resize(name.find(L'\0'));
    return name;
}

}  // namespace

DefaultPrinter::DefaultPrinter() : name_(default_printer_name()) {
    if (name_.empty()) throw Error(ErrorCode::PrinterError, no_printer);
    canvas_ = CreateDCW(L"WINSPOOL", name_.c_str(), nullptr, nullptr);
    if (!canvas_) {
        throw Error(ErrorCode::PrinterError,
                    L"The printer \"" + name_ + L"\" cannot be used. Check it in the Windows settings and try again.");
    }
}

DefaultPrinter::~DefaultPrinter() {
    DeleteDC(canvas_);
}

void DefaultPrinter::start_document(const std::wstring& name) {
    DOCINFOW document{};
    document.cbSize = sizeof document;
    document.lpszDocName = name.c_str();
    printed(name_, [&] {
        const int job = StartDocW(canvas_, &document);
        // A driver that prints to a file asks for the name of the file, and the user may cancel.
        if (job <= 0 && GetLastError() == ERROR_CANCELLED) throw Error(ErrorCode::Cancelled);
        return job;
    });
}

HDC DefaultPrinter::start_page() {
    printed(name_, [this] { return StartPage(canvas_); });
    return canvas_;
}

void DefaultPrinter::end_page() {
    printed(name_, [this] { return EndPage(canvas_); });
}

void DefaultPrinter::end_document() {
    printed(name_, [this] { return EndDoc(canvas_); });
}

void DefaultPrinter::abort_document() noexcept {
    AbortDoc(canvas_);
}

std::unique_ptr<PrintDevice> open_default_printer() {
    return std::make_unique<DefaultPrinter>();
}

PrintJob::PrintJob(PrintDevice& device, const std::wstring& document_name) : device_(device) {
    device_.start_document(document_name.substr(0, longest_document_name));
    try {
        start_page();
    } catch (...) {
        // The destructor does not run if the constructor throws.
        abort();
        throw;
    }
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas_, &metrics);
    flow_ = LineFlow(GetDeviceCaps(canvas_, VERTRES), metrics.tmHeight + metrics.tmExternalLeading);
}

PrintJob::~PrintJob() {
    if (!ended_) abort();
}

void PrintJob::set_position(double left, double top) {
    left_ = dots_across(left);
    flow_.set_top(dots_down(top));
}

void PrintJob::print(std::wstring_view text) {
    const auto length = [this](std::wstring_view part) { return fitting_length(part); };
    for (const std::wstring& line : printed_lines(text, length)) print_line(line);
}

void PrintJob::draw_line(double left, double top, double right, double bottom) {
    const GdiObject<HPEN> pen(CreatePen(PS_SOLID, line_width_, RGB(0, 0, 0)));
    const Selection selected(canvas_, pen.get());
    if (!MoveToEx(canvas_, dots_across(left), dots_down(top), nullptr) ||
        !LineTo(canvas_, dots_across(right), dots_down(bottom))) {
        throw Error(ErrorCode::PrinterError);
    }
}

void PrintJob::end() {
    end_page();
    device_.end_document();
    ended_ = true;
}

void PrintJob::start_page() {
    canvas_ = device_.start_page();
    if (!font_) {
        LOGFONTW description{};
        description.lfHeight = -round_half_even(font_points * GetDeviceCaps(canvas_, LOGPIXELSY) / 72);
        description.lfCharSet = DEFAULT_CHARSET;
        std::copy(std::begin(font_name), std::end(font_name), description.lfFaceName);
        font_ = GdiObject<HFONT>(CreateFontIndirectW(&description));
    }
    former_font_ = SelectObject(canvas_, font_.get());
    // An opaque text background would cover lines drawn close to the text.
    SetBkMode(canvas_, TRANSPARENT);
}

void PrintJob::end_page() {
    SelectObject(std::exchange(canvas_, nullptr), former_font_);
    device_.end_page();
}

void PrintJob::print_line(const std::wstring& line) {
    const LineFlow::Place place = flow_.next();
    if (place.page == LineFlow::Page::Next) {
        end_page();
        start_page();
    }
    if (!ExtTextOutW(canvas_, left_, place.top, 0, nullptr, line.c_str(), static_cast<UINT>(line.size()), nullptr)) {
        throw Error(ErrorCode::PrinterError);
    }
}

std::size_t PrintJob::fitting_length(std::wstring_view text) const {
    const int width = std::max(GetDeviceCaps(canvas_, HORZRES) - left_, 0);
    int fitting = 0;
    SIZE size{};
    if (!GetTextExtentExPointW(canvas_, text.data(), static_cast<int>(text.size()), width, &fitting, nullptr, &size)) {
        throw Error(ErrorCode::PrinterError);
    }
    return static_cast<std::size_t>(fitting);
}

int PrintJob::dots_across(double twips) const {
    return round_half_even(twips * GetDeviceCaps(canvas_, LOGPIXELSX) / twips_per_inch);
}

int PrintJob::dots_down(double twips) const {
    return round_half_even(twips * GetDeviceCaps(canvas_, LOGPIXELSY) / twips_per_inch);
}

void PrintJob::abort() noexcept {
    if (canvas_) SelectObject(canvas_, former_font_);
    device_.abort_document();
}

}  // namespace quillomat
