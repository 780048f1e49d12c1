#include "import/Importlauf.h"

#include "import/Altfelder.h"
#include "import/Zeilenverzeichnis.h"
#include "import/moImp1TolvekToExport.h"
#include "import/moImp3AltKDStoKDS.h"
#include "import/moImp4KDStoMorvek.h"
#include "import/moimp2TolvekExportTOaltKDS.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
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

/// The three new tables and the scratch file through which each step rewrites them.
struct NeueTabellen {
    std::filesystem::path kernDat;
    std::filesystem::path betrDat;
    std::filesystem::path diagDat;
    std::filesystem::path dummyDat;
};

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

/// Keeps the first of equal lines of the care and the diagnosis table. Client lines all stay, as they always have.
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

/// Marks the care records as imported, gives them the reason "Eigene Problematik", and those whose client is
/// "Deutsche(r)" in the older client file the nation.
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

/// Sets the status of each client by `betrDat`, the live care table, which still holds what was there before the
/// import; the repair at the next start works it out anew.
void fülleStatus(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& betrDat)
{
    const Eingabedatei betreuungen(dateien, betrDat);
    auto status = statusAller(betreuungen);
    schreibeUm(dateien, tabellen.kernDat, tabellen.dummyDat, [&](std::string_view zeile, Schreiber& aus) {
        aus.zeile(ersetzeFeld(zeile, feld::kern::betrao, status[getFeld(zeile, feld::kern::kernID)]));
    });
}

/// Writes the list of the imported episodes, columns separated by tabs, and counts both tables.
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

} // namespace

Importlauf::Importlauf(Importort ort, std::filesystem::path kernAlt, std::filesystem::path betreuungenAlt)
    : m_ort(std::move(ort)), m_kernAlt(std::move(kernAlt)), m_betreuungenAlt(std::move(betreuungenAlt)),
      m_ordner(m_ort.bestand.pfade().importordner)
{}

Importzahlen Importlauf::führeAus()
{
    const NeueTabellen tabellen{datei("KernDat.txt"), datei("BetrDat.txt"), datei("DiagDat.txt"),
                                datei("dummyDat.txt")};
    if (dateien().istOrdner(m_ordner)) {
        dateien().entferneOrdner(m_ordner);
    }
    dateien().legeOrdnerAn(m_ordner);
    führeStufenAus(tabellen.kernDat, tabellen.betrDat, tabellen.diagDat);
    entferneDoppelte(dateien(), tabellen);
    beiSchritt("Markiere importierte Datensätze, import: NATION und BETRGRU"_t, 6);
    markiereBetreuungen(dateien(), tabellen, m_kernAlt);
    nachSchritt();
    fülleStatus(dateien(), tabellen, m_ort.bestand.pfade().betrDat);
    const auto zahlen = schreibeImportListe(dateien(), tabellen, m_ort.importListe);
    Vorgang vorgang(m_ort.bestand);
    vorgang.setzeInhalt(Tabelle::Kern, dateien().lies(tabellen.kernDat));
    vorgang.setzeInhalt(Tabelle::Betr, dateien().lies(tabellen.betrDat));
    vorgang.setzeInhalt(Tabelle::Diag, dateien().lies(tabellen.diagDat));
    dateien().entferneOrdner(m_ordner); // nothing is written yet: a failure leaves the live tables as they are
    vorgang.bestätige();
    return zahlen;
}

void Importlauf::entferneReste(const Bestand& bestand)
{
    const auto& ordner = bestand.pfade().importordner;
    try {
        if (bestand.dateien().istOrdner(ordner)) {
            bestand.dateien().entferneOrdner(ordner);
        }
    } catch (const Laufzeitfehler&) {
        // whoever broke off has been told; the next run or start tries again
    }
}

void Importlauf::führeStufenAus(const std::filesystem::path& kernDat, const std::filesystem::path& betrDat,
                                const std::filesystem::path& diagDat) const
{
    const auto kernExp = datei("kernExp.txt");
    const auto betreuungenExp = datei("betreuungenExp.txt");
    const auto extraExp = datei("extraExp.txt");
    const auto aKDSKern = datei("aKDSKern.txt");
    const auto aKDSDiagnose = datei("aKDSDiagnose.txt");
    const auto kdsKern = datei("KDSKern.txt");
    const auto kdsDiagnose = datei("KDSDiagnose.txt");

    beiSchritt("erstelle Tolvek-Export"_t, 1);
    moImp1TolvekToExport(dateien(), m_kernAlt, m_betreuungenAlt, kernExp, betreuungenExp, extraExp);
    nachSchritt();
    beiSchritt("aus Tolvek-Export altKDS schreiben"_t, 2);
    moimp2TolvekExportTOaltKDS(m_ort, kernExp, betreuungenExp, aKDSKern, aKDSDiagnose);
    nachSchritt();
    beiSchritt("konvertiere aKDS nach KDS"_t, 3);
    moImp3AltKDStoKDS(dateien(), aKDSKern, aKDSDiagnose, kdsKern, kdsDiagnose);
    nachSchritt();
    beiSchritt("Konvertierung KDS-DB in Morvek-DB"_t, 4);
    moImp4KDStoMorvek(dateien(), kdsKern, kdsDiagnose, kernDat, betrDat, diagDat, extraExp);
    nachSchritt();
    beiSchritt("Bereit"_t, 5);
}
