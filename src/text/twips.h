#pragma once

namespace quillomat {

/// Windows and printed pages are measured in twips. A pixel has 15 twips at 96 dots per inch.
inline constexpr int twips_per_inch = 1440;

}  // namespace quillomat
