#include "platform/text/Text.h"
#include "satz/Feldreihe.h"

/// The client record. Field 1 has no name and is always empty.
std::vector<Feldreihe> klientenreihen()
{
    using enum Feldart;
    return {
        {""_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"kernID"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"betrao"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"Nachname"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"Vorname"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"Strasse"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"PLZ"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"Ort"_t, einzeln, ohneSpalte, klient, {}, ""_t},
        {"Geschlecht"_t, einzeln, ohneSpalte, klient, werte::geschlecht, "keine Angaben"_t},
        {"Geburtsdatum"_t, einzeln, ohneSpalte, klient, {}, "unbekannt"_t},
        {"memoK"_t, einzeln, ohneSpalte, klient, {}, ""_t},
    };
}
