#pragma once

namespace quillomat {

/// Windows and printed pages are measured in twips, a twentieth of a point: 15 to a pixel at 96 dots per inch.
inline constexpr int twips_per_inch = 1440;

}  // namespace quillomat
