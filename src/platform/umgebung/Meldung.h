#pragma once

#include <string>

enum class Symbol { Keins, Info, Warnung, Stop, Frage };
enum class Knöpfe { OK, OKAbbrechen, JaNein };
enum class Antwort { OK, Abbrechen, Ja, Nein };

/// A message box. Texts are code page; a line break is carriage return, line feed or both.
struct Meldung {
    std::string text;
    Symbol symbol = Symbol::Keins;
    Knöpfe knöpfe = Knöpfe::OK;
    Antwort vorgabe = Antwort::OK; ///< the default button: the first unless told otherwise
    std::string titel;
};
