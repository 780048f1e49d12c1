#pragma once

#include <cmath>

/// The logic measures windows in twips; 15 of them are one logical pixel.
inline constexpr double twipsJePixel = 15;

inline double alsTwips(int pixel)
{
    return pixel * twipsJePixel;
}

inline int alsPixel(double twips)
{
    return static_cast<int>(std::lround(twips / twipsJePixel));
}
