#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// Returns how many leading characters of a text fit on one printed line.
using FittingLength = std::function<std::size_t(std::wstring_view text)>;

/// Returns the lines in which a text is printed. A line that is too wide is broken at a blank if possible, otherwise
/// after the last character that fits. Tabs are expanded to every eighth column. Blanks around a break and at the end
/// of a line are dropped; nothing else is.
std::vector<std::wstring> printed_lines(std::wstring_view text, const FittingLength& fitting_length);

/// Places lines of text one below the other, down the page and on to further pages. All lengths are in the unit of the
/// page, such as dots of a printer.
class LineFlow {
  public:
    enum class Page { Same, Next };
    /// A line's place: on the same page as the line before or on the next page, and its distance from the page's top.
    struct Place {
        Page page;
        int top;

        bool operator==(const Place&) const = default;
    };

    /// All pages have the same height, and so have all lines.
    LineFlow(int page_height, int line_height) : page_height_(page_height), line_height_(line_height) {}

    /// Sets the top of the next line on this page, and of the first line on all further pages.
    void set_top(int top);
    /// Returns the place of the next line. A line never crosses the lower edge, unless the page is too short for any
    /// line.
    Place next();

  private:
    int page_height_;
    int line_height_;
    int first_top_ = 0;
    int next_top_ = 0;
};

}  // namespace quillomat
