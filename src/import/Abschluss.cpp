#include "import/Abschluss.h"

#include "import/Altfelder.h"
#include "import/Eingabedatei.h"
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

void behalteErste(Dateien& dateien, const std::filesystem::path& tabelle, const std::filesystem::path& dummyDat,
                  std::string_view (*vergleichswert)(std::string_view zeile))
{
    std::unordered_set<std::string_view> behaltene;
    schreibeUm(dateien, tabelle, dummyDat, [&](std::string_view zeile, Schreiber& aus) {
        if (!behaltene.contains(zeile)) {
            behaltene.insert(vergleichswert(zeile));
            aus.zeile(zeile);
        }
    });
}

std::string_view ganzeZeile(std::string_view zeile)
{
    return zeile;
}

std::string_view kernID(std::string_view zeile)
{
    return getFeld(zeile, feld::kern::kernID);
}

/// The care line with its first 191 fields and the mark in place of the last.
std::string markiert(std::string_view zeile, bool istDeutsch)
{
    std::string neu(istDeutsch ? ersetzeFeld(zeile, feld::betr::nation, getNationZuCode("DEU"_t)) : std::string(zeile));
    neu = ersetzeFeld(neu, feld::betr::betrGru, *werte::textZu(werte::betrGru, codeEigeneProblematik));
    return verbinde(felder(neu, feld::betr::kernID, feld::betr::memo - 1), "Importierter Datensatz"_t);
}

/// Numbers of the clients that are "Deutsche(r)", by the first line with the number.
std::unordered_set<std::string_view> deutsche(const Eingabedatei& kernAlt)
{
    std::unordered_set<std::string_view> gesehene;
    std::unordered_set<std::string_view> nummern;
    kernAlt.fürJedenSatz([&](std::string_view zeile) {
        const auto nummer = getFeld(zeile, altfeld::klient::nummer);
        if (gesehene.insert(nummer).second && getFeld(zeile, altfeld::klient::nationalität) == "Deutsche(r)"_t) {
            nummern.insert(nummer);
        }
    });
    return nummern;
}

/// "o" or "a" for each client of the care table, by field 1 as text: what `betrStatusVon` would answer, in one
/// pass for all.
std::unordered_map<std::string_view, std::string_view> statusAller(const Eingabedatei& betrDat)
{
    std::unordered_map<std::string_view, std::string_view> status;
    betrDat.fürJedeZeile([&](std::string_view zeile) {
        const bool offen = getFeld(zeile, feld::betr::ende) == "offen"_t;
        const auto [ort, neu] = status.try_emplace(getFeld(zeile, feld::betr::kernID), offen ? "o"_t : "a"_t);
        if (!neu && offen) {
            ort->second = "o"_t;
        }
    });
    return status;
}

} // namespace

void entferneDoppelte(Dateien& dateien, const NeueTabellen& tabellen)
{
    behalteErste(dateien, tabellen.kernDat, tabellen.dummyDat, kernID);
    behalteErste(dateien, tabellen.betrDat, tabellen.dummyDat, ganzeZeile);
    behalteErste(dateien, tabellen.diagDat, tabellen.dummyDat, ganzeZeile);
}

void markiereBetreuungen(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& kernAlt)
{
    const Eingabedatei klienten(dateien, kernAlt);
    const auto nummern = deutsche(klienten);
    schreibeUm(dateien, tabellen.betrDat, tabellen.dummyDat, [&](std::string_view zeile, Schreiber& aus) {
        aus.zeile(markiert(zeile, nummern.contains(getFeld(zeile, feld::betr::kernID))));
    });
}

void fülleStatus(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& betrDat)
{
    const Eingabedatei betreuungen(dateien, betrDat);
    const auto status = statusAller(betreuungen);
    schreibeUm(dateien, tabellen.kernDat, tabellen.dummyDat, [&](std::string_view zeile, Schreiber& aus) {
        const auto ort = status.find(kernID(zeile));
        aus.zeile(ersetzeFeld(zeile, feld::kern::betrao, ort == status.end() ? std::string_view{} : ort->second));
    });
}

Importzahlen schreibeImportListe(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& liste)
{
    Importzahlen zahlen;
    const Eingabedatei klienten(dateien, tabellen.kernDat);
    const Eingabedatei betreuungen(dateien, tabellen.betrDat);
    std::unordered_map<std::string_view, std::string_view> klientenzeilen;
    klienten.fürJedeZeile([&](std::string_view zeile) {
        ++zahlen.klienten;
        klientenzeilen.try_emplace(kernID(zeile), zeile);
    });
    const auto aus = dateien.schreibeNeu(liste);
    aus->zeile("kernID\tbetrID\tNachname\tVorname"_t);
    betreuungen.fürJedeZeile([&](std::string_view zeile) {
        ++zahlen.betreuungen;
        const auto klient = klientenzeilen.find(getFeld(zeile, feld::betr::kernID));
        const auto name = klient == klientenzeilen.end() ? std::string()
                                                         : verbinde(getFeld(klient->second, feld::kern::nachname), '\t',
                                                                    getFeld(klient->second, feld::kern::vorname));
        aus->zeile(verbinde(getFeld(zeile, feld::betr::kernID), '\t', getFeld(zeile, feld::betr::betrID), '\t', name));
    });
    aus->schließe();
    return zahlen;
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
