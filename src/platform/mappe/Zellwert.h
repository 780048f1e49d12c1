#pragma once

#include "platform/text/Datum.h"

#include <string>
#include <string_view>

enum class Zellart { Leer, Text, Zahl, Datum };

/// How a cell takes the text that is put into it.
enum class Zelltyp {
    Allgemein,            ///< German numbers and dates become values, all else stays text
    AllgemeinMinusHinten, ///< the same, and "5-" is a number too (a column split into columns)
    Text,                 ///< every text stays as it is
};

/// What a cell shows: its kind, the text it was given, and the value where the text reads as one.
struct Zellwert {
    Zellart art = Zellart::Leer;
    std::string_view text; ///< code page, as it was put in
    double zahl = 0;
    Datum datum;
};

/// Reads the text as a cell of the type takes it.
///
/// A number is, blanks around it aside, an optional sign and digits, with points between full groups of three
/// if any, then an optional comma with digits; or digits with an optional comma part and an exponent. More
/// than 15 significant digits stay text, since a spreadsheet would lose the last ones. A date is D.M.YYYY or
/// D.M.YY, a day of the calendar from 01.01.1900 on. A text that begins with "=" or "@" is no formula.
Zellwert leseZelle(std::string_view text, Zelltyp typ);

/// The value as a text: numbers in their shortest form with a point, dates as TT.MM.JJJJ, texts as they are
/// without the character 0.
std::string alsText(const Zellwert& wert);

/// The value as the German text a person would read in the cell (1,5 for the number 1.5); ids are compared
/// in this form.
std::string alsAnzeigetext(const Zellwert& wert);
