#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// Returns how many leading characters of a text fit on one printed line.
using FittingLength = std::function<std::size_t(std::wstring_view text)>;

/// The lines in which a text is printed. Every line break of the text ends a line; a line that is too wide goes on in
/// the next one, after a blank where there is one, else after the last character that fits. Tabs become blanks up to
/// the next multiple of eight characters. Blanks at the end of a printed line, which nobody could see, are left out;
/// nothing else is.
std::vector<std::wstring> printed_lines(std::wstring_view text, const FittingLength& fitting_length);

/// Finds the places of lines that follow one another down the page and on to further pages. Units are those of the
/// page, such as a printer's dots.
class LineFlow {
  public:
    enum class Page { Same, Next };
    /// Where a line stands: on the page of the one before or on the next page, and how far down.
    struct Place {
        Page page;
        int top;

        bool operator==(const Place&) const = default;
    };

    /// Lines of one height on pages of one height.
    LineFlow(int page_height, int line_height) : page_height_(page_height), line_height_(line_height) {}

    /// Where the next line goes on this page, and the first one on all further pages.
    void set_top(int top);
    /// The place of the next line. A line is never cut at the lower edge unless the page is too small for any.
    Place next();

  private:
    int page_height_;
    int line_height_;
    int first_top_ = 0;
    int next_top_ = 0;
};

}  // namespace quillomat
