#include "ablauf/Anweisungen.h"
#include "ablauf/Programmdateien.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace {

std::string liesProgrammdatei(const Lauf& lauf, const Anweisung& anweisung)
{
    return liesDatei(lauf.imProgramm(anweisung.argument(0)));
}

void dateiinhalt(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheInhalt(alsDateiinhalt(anweisung.zeilen), liesProgrammdatei(lauf, anweisung));
}

void roh(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheInhalt(alsTabellentext(anweisung.argument(1)), liesProgrammdatei(lauf, anweisung));
}

/// The line that the statement's second argument names.
std::string zeileVon(const Lauf& lauf, const Anweisung& anweisung)
{
    const std::string inhalt = liesProgrammdatei(lauf, anweisung);
    const auto nummer = anweisung.zahl(1);
    Zeilen zeilen(inhalt);
    while (const auto zeile = zeilen.nächste()) {
        if (static_cast<std::int64_t>(zeilen.nummer()) == nummer) {
            return std::string(*zeile);
        }
    }
    throw Scheitern("die Zeile " + std::to_string(nummer), "nur " + std::to_string(zeilen.nummer()));
}

std::string_view teil(std::string_view zeile, std::int64_t nummer, char trennzeichen)
{
    for (std::int64_t i = 1; i < nummer; ++i) {
        const std::size_t ort = zeile.find(trennzeichen);
        if (ort == std::string_view::npos) {
            return {};
        }
        zeile.remove_prefix(ort + 1);
    }
    return zeile.substr(0, zeile.find(trennzeichen));
}

void vergleicheStelle(Lauf& lauf, const Anweisung& anweisung, const std::string& was, char trennzeichen)
{
    const std::string zeile = zeileVon(lauf, anweisung);
    const auto nummer = anweisung.zahl(2);
    vergleicheText(was + std::to_string(nummer), alsTabellentext(anweisung.argument(3)),
                   teil(zeile, nummer, trennzeichen));
}

void feld(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheStelle(lauf, anweisung, "Feld ", trenner);
}

void spalte(Lauf& lauf, const Anweisung& anweisung)
{
    vergleicheStelle(lauf, anweisung, "Spalte ", ';');
}

void felderzahl(Lauf& lauf, const Anweisung& anweisung)
{
    const std::string zeile = zeileVon(lauf, anweisung);
    vergleicheZahl("Felder:", anweisung.zahl(2), std::count(zeile.begin(), zeile.end(), trenner) + 1);
}

void zeilenzahl(Lauf& lauf, const Anweisung& anweisung)
{
    const std::string inhalt = liesProgrammdatei(lauf, anweisung);
    vergleicheZahl("Zeilen:", anweisung.zahl(1), static_cast<std::int64_t>(zähleZeilen(inhalt)));
}

void vorhanden(Lauf& lauf, const Anweisung& anweisung)
{
    if (!std::filesystem::exists(lauf.imProgramm(anweisung.argument(0)))) {
        throw Scheitern(alsUtf8(anweisung.argument(0)) + " vorhanden", "nichts");
    }
}

void fehlt(Lauf& lauf, const Anweisung& anweisung)
{
    const auto pfad = lauf.imProgramm(anweisung.argument(0));
    if (std::filesystem::exists(pfad)) {
        throw Scheitern("kein " + alsUtf8(anweisung.argument(0)),
                        std::filesystem::is_directory(pfad) ? "den Ordner" : "die Datei");
    }
}

void sichere(Lauf& lauf, const Anweisung& anweisung)
{
    kopiereNach(lauf.imProgramm(anweisung.argument(0)), lauf.draußen(anweisung.argument(1)));
}

} // namespace

Handlertafel dateierwartungen()
{
    return {
        {"erwarte datei", dateiinhalt},     {"erwarte roh", roh},       {"erwarte feld", feld},
        {"erwarte felderzahl", felderzahl}, {"erwarte spalte", spalte}, {"erwarte zeilenzahl", zeilenzahl},
        {"erwarte vorhanden", vorhanden},   {"erwarte fehlt", fehlt},   {"sichere", sichere},
    };
}
