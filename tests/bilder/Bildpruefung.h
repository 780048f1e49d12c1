#pragma once

#include <QStringList>

/// What is measured at a stop of the walk.
struct Bildmaß {
    bool hatPlatz = false;    ///< the screen is so large that no table has to scroll
    bool misstFarben = false; ///< strokes are wide enough for their colour to be read from pixels
};

/// Looks at every window that can be seen, as a person would: is all of it on the screen, is every text whole or says
/// its whole in a tool tip, can every text be read? Returns a line for each finding.
QStringList prüfeFenster(const Bildmaß& maß);
