#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QIcon;

/// The colours of a theme by the names that the style sheet uses.
struct Farbtafel {
    QColor grund, flaeche, feld, zebra, linie, rand, feldrand, schrift, schrift2, gesperrt;
    QColor akzent, akzentH, aufakzent, wahl, band, aufband, band2, fokus, fehler;
};

enum class Thema { Hell, Dunkel };

/// Prepares the application once, at start: German locale and button texts, base style, palette and style sheet. The
/// theme is the system's: dark when its window colour is darker than half.
void richteStilEin(QApplication& anwendung);
/// The same with a chosen theme.
void richteStilEin(QApplication& anwendung, Thema thema);

/// The sign of the program, in all sizes.
QIcon programmzeichen();

/// The colours in use.
const Farbtafel& farben();

/// Contrast of two colours, 1 to 21.
double kontrast(const QColor& eine, const QColor& andere);

/// Length in logical pixels; 1 em is the height of a line of the system's font.
int em(double länge);

/// The layout without margins, its parts so many em apart.
template <class L> L* ohneRand(L* layout, double abstand = 0)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(em(abstand));
    return layout;
}

enum class Schriftrolle { Grund, Bandtitel, Bandname, Kartentitel, Spaltenkopf, Wert };
/// The font of a role, derived from the system's font by size and weight alone.
QFont schrift(Schriftrolle rolle);
