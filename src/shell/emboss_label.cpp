#include "shell/emboss_label.h"

#include "controls/graphics.h"
#include "forms/form.h"
#include "win/gdi.h"

namespace quillomat {
namespace {

constexpr Colour shadow_colour{0x808080};
constexpr Colour highlight_colour{0xFFFFFF};

void place_copy(Label& copy, const Label& main, double offset) {
    copy.move({main.left() + offset, main.top() + offset, main.width(), main.height()});
}

}  // namespace

void EmbossLabel(Label& main, Label& shadow, Label& highlight, const std::wstring& text, EmbossStyle style,
                 Colour text_colour, int depth) {
    const std::wstring caption = text.empty() ? main.caption() : text;
    for (Label* label : {&main, &shadow, &highlight}) {
        label->set_caption(caption);
        label->set_back_style(BackStyle::Transparent);
    }
    // If the text colour itself is illegible on the background, edges of a fixed colour would only blur the text.
    const bool plain = legible(text_colour, main.container().back_colour()) != resolve(text_colour);
    main.set_fore_colour(plain ? colours::button_text : text_colour);
    shadow.set_fore_colour(shadow_colour);
    highlight.set_fore_colour(highlight_colour);
    const double offset = to_twips(style == EmbossStyle::Raised ? depth : -depth, main.form().dpi());
    place_copy(shadow, main, offset);
    place_copy(highlight, main, -offset);
    // The labels are painted together when the message queue is empty, so that no intermediate state is visible.
    for (Label* edge : {&shadow, &highlight}) edge->set_visible(!plain);
    main.set_visible(true);
    main.bring_to_front();
}

}  // namespace quillomat
