#pragma once

#include <string>

/// The screen before which the person sits.
struct Schirm {
    int breite = 3840; ///< in the screen's own pixels
    int höhe = 2160;
    double schärfe = 1; ///< its own pixels for a logical one
    double schrift = 0; ///< the system's font against one of 10 points; 0 leaves the platform's own
    std::string schriftart = "Noto Sans";
    bool istDunkel = false;
};
