#include "store/Pruefung.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "store/Bezugspruefung.h"
#include "store/Feldpruefung.h"
#include "store/Restepruefung.h"
#include "store/Zeilenpruefung.h"

#include <algorithm>
#include <functional>
#include <ostream>
#include <set>

namespace {

using Satzbesuch = std::function<void(const Satzzeile& satz)>;

/// Walks the table: what can be told of a line by itself is told, what it says of others is the visitor's.
std::size_t prüfeTabelle(Dateien& dateien, const Bestandspfade& pfade, Tabelle tabelle, Befundliste& befunde,
                         const Satzbesuch& besuch)
{
    const auto& pfad = pfade.von(tabelle);
    if (dateien.fehlt(pfad)) {
        throw Laufzeitfehler(verbinde("Die Tabelle \""_t, pfadtext(pfad), "\" fehlt."_t));
    }
    const auto inhalt = dateien.lies(pfad);
    prüfeZeilenenden(tabelle, inhalt->text(), befunde);
    Satzzeile satz{};
    Zeilen zeilen(inhalt->text());
    while (const auto zeile = zeilen.nächste()) {
        if (zerlegeZeile(tabelle, *zeile, zeilen.nummer(), satz, befunde)) {
            prüfeForm(satz, befunde);
            prüfeWerte(satz, befunde);
            besuch(satz);
        }
    }
    return zeilen.nummer();
}

void prüfeKlientensatz(const Satzzeile& satz, Bezugsprüfung& bezüge, Befundliste& befunde)
{
    prüfeDatum(satz, feld::kern::geburtsdatum, "unbekannt"_t, befunde);
    if (const auto kernID = prüfeSchlüssel(satz, feld::kern::kernID, befunde)) {
        bezüge.nimmKlienten(satz.nummer, *kernID, satz.feld(feld::kern::betrao));
    }
}

void prüfeBetreuungssatz(const Satzzeile& satz, Bezugsprüfung& bezüge, Befundliste& befunde)
{
    constexpr auto offen = "offen"_t;
    const auto von = prüfeDatum(satz, feld::betr::beginn, {}, befunde);
    const auto bis = prüfeDatum(satz, feld::betr::ende, offen, befunde);
    const auto kernID = prüfeSchlüssel(satz, feld::betr::kernID, befunde);
    const auto betrID = prüfeSchlüssel(satz, feld::betr::betrID, befunde);
    if (kernID && betrID) {
        bezüge.nimmBetreuung(satz.nummer, *kernID, *betrID, {von, bis, satz.feld(feld::betr::ende) == offen});
    }
}

void prüfeDiagnosesatz(const Satzzeile& satz, Bezugsprüfung& bezüge, Befundliste& befunde)
{
    prüfeBitfeld(satz, befunde);
    const auto kernID = prüfeSchlüssel(satz, feld::diag::kernID, befunde);
    const auto betrID = prüfeSchlüssel(satz, feld::diag::betrID, befunde);
    if (kernID && betrID) {
        bezüge.nimmDiagnose(satz.nummer, *kernID, *betrID);
    }
}

std::string dateinameAn(const Fundort& ort, const Bestandspfade& pfade)
{
    return ort.tabelle ? pfadtext(pfade.von(*ort.tabelle).filename()) : ort.datei;
}

/// "3 Befunde", "1 Befund".
std::string gezählt(std::size_t anzahl, std::string_view einzahl, std::string_view mehrzahl)
{
    return verbinde(std::to_string(anzahl), ' ', anzahl == 1 ? einzahl : mehrzahl);
}

std::string alsZusammenfassung(const Prüfbericht& bericht, const Bestandspfade& pfade)
{
    std::set<std::string> dateien;
    std::size_t hinweise = 0;
    for (const auto& befund : bericht.befunde) {
        if (befund.istHinweis()) {
            ++hinweise;
        } else {
            dateien.insert(dateinameAn(befund.ort, pfade));
        }
    }
    const auto befunde = bericht.befunde.size() - hinweise;
    auto text = befunde == 0 ? std::string("Keine Befunde: "_t)
                             : verbinde(gezählt(befunde, "Befund"_t, "Befunde"_t), " in "_t,
                                        gezählt(dateien.size(), "Datei"_t, "Dateien"_t), ": "_t);
    text += verbinde(gezählt(bericht.klienten, "Klient"_t, "Klienten"_t), ", "_t,
                     gezählt(bericht.betreuungen, "Betreuung"_t, "Betreuungen"_t));
    if (hinweise > 0) {
        text += verbinde(", "_t, gezählt(hinweise, "Hinweis"_t, "Hinweise"_t));
    }
    return text + '.';
}

} // namespace

Prüfbericht prüfeBestand(Dateien& dateien, const Bestandspfade& pfade)
{
    Befundliste befunde;
    Bezugsprüfung bezüge(befunde);
    Prüfbericht bericht;
    bericht.klienten = prüfeTabelle(dateien, pfade, Tabelle::Kern, befunde,
                                    [&](const Satzzeile& satz) { prüfeKlientensatz(satz, bezüge, befunde); });
    bericht.betreuungen = prüfeTabelle(dateien, pfade, Tabelle::Betr, befunde,
                                       [&](const Satzzeile& satz) { prüfeBetreuungssatz(satz, bezüge, befunde); });
    prüfeTabelle(dateien, pfade, Tabelle::Diag, befunde,
                 [&](const Satzzeile& satz) { prüfeDiagnosesatz(satz, bezüge, befunde); });
    bezüge.schließeAb();
    prüfeReste(dateien, pfade, befunde);
    bericht.befunde = befunde.nimm();
    return bericht;
}

std::string alsBerichtszeile(const Befund& befund, const Bestandspfade& pfade)
{
    auto ort = dateinameAn(befund.ort, pfade);
    if (befund.ort.zeile > 0) {
        ort += verbinde(", Zeile "_t, std::to_string(befund.ort.zeile));
    }
    if (befund.ort.feld > 0) {
        ort += verbinde(", Feld "_t, std::to_string(befund.ort.feld));
        if (!befund.feldname.empty()) {
            ort += verbinde(" ("_t, befund.feldname, ')');
        }
    }
    return verbinde(befund.istHinweis() ? "Hinweis: "_t : ""_t, ort, ": "_t, befund.text, "; "_t, befund.folge);
}

int pruefe(const std::filesystem::path& programmordner, std::ostream& aus)
{
    const auto pfade = bildeBestandspfade(std::filesystem::absolute(programmordner / ".").lexically_normal());
    Dateien dateien;
    try {
        const auto bericht = prüfeBestand(dateien, pfade);
        for (const auto& befund : bericht.befunde) {
            aus << alsUtf8(alsBerichtszeile(befund, pfade)) << '\n';
        }
        aus << alsUtf8(alsZusammenfassung(bericht, pfade)) << '\n';
        return std::ranges::all_of(bericht.befunde, &Befund::istHinweis) ? 0 : 1;
    } catch (const Laufzeitfehler& fehler) {
        aus << "Nicht lesbar: " << alsUtf8(fehler.text()) << '\n';
        return 2;
    }
}
