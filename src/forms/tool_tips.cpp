#include "forms/tool_tips.h"

#include "forms/geometry.h"

namespace quillomat {
namespace {

// Long texts, such as a long game name, break into lines, or they would not fit the screen.
constexpr double widest_line = 9000;  // twips

}  // namespace

void ToolTips::create(HWND form, int dpi) {
    form_ = form;
    window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0,
                              0, form_, nullptr, nullptr, nullptr);
    fit_resolution(dpi);
}

void ToolTips::fit_resolution(int dpi) {
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, to_pixels(widest_line, dpi));
}

void ToolTips::set(HWND control, const std::wstring& text) {
    TTTOOLINFOW tool{};
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    put(tool, text);
}

void ToolTips::set(HWND window, const void* owner, const RECT& area, const std::wstring& text) {
    TTTOOLINFOW tool{};
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(owner);
    tool.rect = area;
    put(tool, text);
}

void ToolTips::put(TTTOOLINFOW& tool, const std::wstring& text) {
    tool.cbSize = sizeof tool;
    TTTOOLINFOW known = tool;
    // `lpszText` is still null, because TTM_GETTOOLINFO would write to it.
    const bool is_known = SendMessageW(window_, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&known)) != 0;
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    if (text.empty()) {
        SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    } else if (is_known) {
        SendMessageW(window_, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
        SendMessageW(window_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    } else {
        SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

}  // namespace quillomat
