#pragma once

#include <string>

#include "win/colour.h"

namespace quillomat {

class Label;

/// Raised text has its light edge at the upper left, pressed-in text at the lower right.
enum class EmbossStyle { Raised = 1, PressedIn = 2 };

/// Makes a text look raised or pressed in. `main` shows the text, `shadow` a grey copy `depth` pixels to the lower
/// right and `highlight` a white copy to the upper left, or the other way round. If the user's colours leave too little
/// contrast, `main` alone shows the text, in the user's text colour. An empty text keeps the caption of `main`.
void EmbossLabel(Label& main, Label& shadow, Label& highlight, const std::wstring& text, EmbossStyle style,
                 Colour text_colour, int depth);

}  // namespace quillomat
