#include "umgebung/Meldungsworte.h"

std::string_view wortFür(Symbol symbol)
{
    switch (symbol) {
    case Symbol::Keins:
        return "keins";
    case Symbol::Info:
        return "info";
    case Symbol::Warnung:
        return "warnung";
    case Symbol::Stop:
        return "stop";
    case Symbol::Frage:
        return "frage";
    }
    return {};
}

std::string_view wortFür(Knöpfe knöpfe)
{
    switch (knöpfe) {
    case Knöpfe::OK:
        return "OK";
    case Knöpfe::OKAbbrechen:
        return "OKAbbrechen";
    case Knöpfe::JaNein:
        return "JaNein";
    }
    return {};
}

std::string_view wortFür(Antwort antwort)
{
    switch (antwort) {
    case Antwort::OK:
        return "OK";
    case Antwort::Abbrechen:
        return "Abbrechen";
    case Antwort::Ja:
        return "Ja";
    case Antwort::Nein:
        return "Nein";
    }
    return {};
}

Antwort antwortVon(std::u32string_view wort)
{
    if (wort == U"OK") {
        return Antwort::OK;
    }
    if (wort == U"Abbrechen") {
        return Antwort::Abbrechen;
    }
    return wort == U"Ja" ? Antwort::Ja : Antwort::Nein;
}
