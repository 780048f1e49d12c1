#pragma once

#include <QString>

#include <cstddef>
#include <string>

class QWidget;

/// What a field takes of a text as it was typed or pasted.
struct Feldeingabe {
    std::string text;             ///< code page
    std::size_t schreibmarke = 0; ///< characters of `text` left of the cursor
    bool ersetzt = false;
    bool verweigert = false;
    bool istWieGetippt = true; ///< the widget shows the result already
};

/// The text of a widget, cut down to the code page, with the cursor behind the same character.
Feldeingabe filtere(const QString& text, int schreibmarke, bool mehrzeilig, std::size_t höchstlänge);

/// Name of the label that tells it.
inline const QString filterhinweis = QStringLiteral("filterhinweis");
/// Says at the field, for four seconds, that a character was replaced or not taken.
void meldeFilter(QWidget& feld, const Feldeingabe& eingabe);
