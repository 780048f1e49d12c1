#include "import/Abschluss.h"

#include "import/Altfelder.h"
#include "import/Zeilenverzeichnis.h"
#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Wertelisten.h"
#include "satz/moHelferlein.h"
#include "satz/moNationen.h"
#include "store/Vorgang.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace {

constexpr auto codeEigeneProblematik = "1"_t;

/// Rewrites the table through the scratch file: `tue(zeile, aus)` writes what becomes of each line.
template <class F>
void schreibeUm(Dateien& dateien, const std::filesystem::path& tabelle, const std::filesystem::path& dummyDat, F tue)
{
    const Eingabedatei ein(dateien, tabelle);
    dateien.ersetze(tabelle, dummyDat,
                    [&](Schreiber& aus) { ein.fürJedeZeile([&](std::string_view zeile) { tue(zeile, aus); }); });
}

/// The care line with its first 191 fields and the mark in place of the last.
std::string markiert(std::string_view zeile, bool istDeutsch)
{
    std::string neu(istDeutsch ? ersetzeFeld(zeile, feld::betr::nation, getNationZuCode("DEU"_t)) : std::string(zeile));
    neu = ersetzeFeld(neu, feld::betr::betrGru, *werte::textZu(werte::betrGru, codeEigeneProblematik));
    return verbinde(felder(neu, feld::betr::kernID, feld::betr::memo - 1), "Importierter Datensatz"_t);
}

/// "o" or "a" for each client of the care table, by field 1 as text: what `betrStatusVon` would answer, in one
/// pass for all.
std::unordered_map<std::string_view, std::string_view> statusAller(const Eingabedatei& betrDat)
{
    std::unordered_map<std::string_view, std::string_view> status;
    betrDat.fürJedeZeile([&](std::string_view zeile) {
        auto& wert = status[getFeld(zeile, feld::betr::kernID)];
        if (wert != "o"_t) {
            wert = getFeld(zeile, feld::betr::ende) == "offen"_t ? "o"_t : "a"_t;
        }
    });
    return status;
}

} // namespace

void entferneDoppelte(Dateien& dateien, const NeueTabellen& tabellen)
{
    for (const auto* tabelle : {&tabellen.betrDat, &tabellen.diagDat}) {
        std::unordered_set<std::string_view> behaltene;
        schreibeUm(dateien, *tabelle, tabellen.dummyDat, [&](std::string_view zeile, Schreiber& aus) {
            if (behaltene.insert(zeile).second) {
                aus.zeile(zeile);
            }
        });
    }
}

void markiereBetreuungen(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& kernAlt)
{
    const Eingabedatei altdatei(dateien, kernAlt);
    const Zeilenverzeichnis<std::string_view> klienten(
        altdatei, [](std::string_view zeile) { return getFeld(zeile, altfeld::klient::nummer); });
    schreibeUm(dateien, tabellen.betrDat, tabellen.dummyDat, [&](std::string_view zeile, Schreiber& aus) {
        const auto klient = klienten.finde(getFeld(zeile, feld::betr::kernID));
        aus.zeile(markiert(zeile, getFeld(klient, altfeld::klient::nationalität) == "Deutsche(r)"_t));
    });
}

void fülleStatus(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& betrDat)
{
    const Eingabedatei betreuungen(dateien, betrDat);
    auto status = statusAller(betreuungen);
    schreibeUm(dateien, tabellen.kernDat, tabellen.dummyDat, [&](std::string_view zeile, Schreiber& aus) {
        aus.zeile(ersetzeFeld(zeile, feld::kern::betrao, status[getFeld(zeile, feld::kern::kernID)]));
    });
}

Importzahlen schreibeImportListe(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& liste)
{
    const Eingabedatei kernDat(dateien, tabellen.kernDat);
    const Eingabedatei betrDat(dateien, tabellen.betrDat);
    const Zeilenverzeichnis<std::string_view> klienten(
        kernDat, [](std::string_view zeile) { return getFeld(zeile, feld::kern::kernID); });
    const auto aus = dateien.schreibeNeu(liste);
    aus->zeile("kernID\tbetrID\tNachname\tVorname"_t);
    betrDat.fürJedeZeile([&](std::string_view zeile) {
        const auto klient = klienten.finde(getFeld(zeile, feld::betr::kernID));
        const auto name = klient.empty() ? std::string()
                                         : verbinde(getFeld(klient, feld::kern::nachname), '\t',
                                                    getFeld(klient, feld::kern::vorname));
        aus->zeile(verbinde(getFeld(zeile, feld::betr::kernID), '\t', getFeld(zeile, feld::betr::betrID), '\t', name));
    });
    aus->schließe();
    return {kernDat.zeilenzahl(), betrDat.zeilenzahl()};
}

void ersetzeTabellen(const Bestand& bestand, const NeueTabellen& tabellen, const std::function<void()>& davor)
{
    Dateien& dateien = bestand.dateien();
    Vorgang vorgang(bestand);
    vorgang.setzeInhalt(Tabelle::Kern, dateien.lies(tabellen.kernDat));
    vorgang.setzeInhalt(Tabelle::Betr, dateien.lies(tabellen.betrDat));
    vorgang.setzeInhalt(Tabelle::Diag, dateien.lies(tabellen.diagDat));
    davor();
    vorgang.bestätige();
}
