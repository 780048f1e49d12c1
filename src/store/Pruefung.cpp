#include "store/Pruefung.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Eingabe.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "store/Bezugspruefung.h"
#include "store/Feldpruefung.h"
#include "store/Niederschrift.h"
#include "store/Vollzugsvermerk.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <set>

namespace fs = std::filesystem;

namespace {

using namespace befundart;

void prüfeKlientensatz(const Satzzeile& satz, Bezugsprüfung& bezüge)
{
    prüfeDatum(satz, feld::kern::geburtsdatum, "unbekannt"_t);
    if (const auto kernID = prüfeSchlüssel(satz, feld::kern::kernID)) {
        bezüge.nimmKlienten(satz.nummer, *kernID, satz.feld(feld::kern::betrao));
    }
}

void prüfeBetreuungssatz(const Satzzeile& satz, Bezugsprüfung& bezüge)
{
    constexpr auto offen = "offen"_t;
    const auto von = prüfeDatum(satz, feld::betr::beginn, {});
    const auto bis = prüfeDatum(satz, feld::betr::ende, offen);
    const auto kernID = prüfeSchlüssel(satz, feld::betr::kernID);
    const auto betrID = prüfeSchlüssel(satz, feld::betr::betrID);
    if (kernID && betrID) {
        bezüge.nimmBetreuung(satz.nummer, *kernID, *betrID, {von, bis, satz.feld(feld::betr::ende) == offen});
    }
}

void prüfeDiagnosesatz(const Satzzeile& satz, Bezugsprüfung& bezüge)
{
    prüfeBitfeld(satz);
    const auto kernID = prüfeSchlüssel(satz, feld::diag::kernID);
    const auto betrID = prüfeSchlüssel(satz, feld::diag::betrID);
    if (kernID && betrID) {
        bezüge.nimmDiagnose(satz.nummer, *kernID, *betrID);
    }
}

using Satzprüfung = void (*)(const Satzzeile& satz, Bezugsprüfung& bezüge);

/// Walks the table: what can be told of a line by itself is told, what it says of others goes into the index.
std::size_t prüfeTabelle(std::string_view inhalt, Satzzeile satz, Satzprüfung prüfeSatz, Bezugsprüfung& bezüge)
{
    prüfeZeilenenden(satz.tabelle, inhalt, satz.befunde);
    Zeilen zeilen(inhalt);
    while (const auto zeile = zeilen.nächste()) {
        satz.nummer = zeilen.nummer();
        if (zerlege(*zeile, satz)) {
            prüfeForm(satz);
            prüfeWerte(satz);
            prüfeSatz(satz, bezüge);
        }
    }
    return zeilen.nummer();
}

Fundort anDatei(const fs::path& pfad, const Bestandspfade& pfade)
{
    return {.tabelle = {}, .datei = pfadtext(pfad.lexically_relative(pfade.dummyDatei.parent_path()))};
}

/// The tables for which a whole record promises a new content.
std::vector<Vermerk> prüfeVermerk(Dateien& dateien, const Bestandspfade& pfade, Befundliste& befunde)
{
    if (!dateien.istDatei(pfade.vorgang)) {
        return {};
    }
    const auto vermerke = leseVermerke(dateien.lies(pfade.vorgang)->text(), pfade);
    befunde.melde(vermerke ? VermerkGanz : VermerkUnvollständig, anDatei(pfade.vorgang, pfade));
    return vermerke.value_or(std::vector<Vermerk>());
}

void prüfeArbeitsdateien(Dateien& dateien, const Bestandspfade& pfade, Befundliste& befunde)
{
    const auto prüfe = [&](const Befundart& art, const fs::path& pfad, std::string_view folge = {}) {
        if (dateien.istDatei(pfad)) {
            befunde.melde(art, anDatei(pfad, pfade), {}, folge);
        }
    };
    const auto versprochen = prüfeVermerk(dateien, pfade, befunde);
    for (const auto tabelle : alleSechs) {
        const bool gehörtDazu = std::ranges::find(versprochen, tabelle, &Vermerk::tabelle) != versprochen.end();
        prüfe(Arbeitsdatei, neuNeben(dateien, pfade.von(tabelle)),
              gehörtDazu ? "kommt beim nächsten Start an ihre Stelle"_t : std::string_view());
    }
    prüfe(Arbeitsdatei, neuNeben(dateien, pfade.vorgang));
    prüfe(Arbeitsdatei, pfade.probe);
    prüfe(AlteArbeitsdatei, pfade.dummyDatei);
    prüfe(AlteArbeitsdatei, pfade.dummyDatei.parent_path() / "Tolvekdummy.txt");
}

/// What a run that was broken off has left beside the tables: a commit record, work files, folders.
void prüfeReste(Dateien& dateien, const Bestandspfade& pfade, Befundliste& befunde)
{
    prüfeArbeitsdateien(dateien, pfade, befunde);
    const bool hatSicherungen = dateien.istOrdner(pfade.sicherungen);
    for (const auto& name : hatSicherungen ? dateien.ordnerIn(pfade.sicherungen) : std::vector<fs::path>()) {
        if (istFassungNeben(name)) {
            befunde.melde(SicherungAngefangen, anDatei(pfade.sicherungen / name, pfade));
        } else if (pfadtext(name).ends_with("unvollendet"_t)) {
            befunde.melde(SicherungUnvollendet, anDatei(pfade.sicherungen / name, pfade));
        }
    }
    if (dateien.istOrdner(pfade.importordner)) {
        befunde.melde(befundart::Importordner, anDatei(pfade.importordner, pfade));
    }
}

std::string dateinameAn(const Fundort& ort, const Bestandspfade& pfade)
{
    return ort.tabelle ? pfadtext(pfade.von(*ort.tabelle).filename()) : ort.datei;
}

/// What a field is called in the report: its name, in the blocks of the diagnosis record group and question.
std::string feldname(Tabelle tabelle, int feld)
{
    constexpr std::array<std::string_view, felderJeGruppe> fragen{
        "Konsumart"_t,        "Konsumtage vor Beginn"_t, "Konsumtage vor Ende"_t, "ICD Stelle 4+5"_t,
        "Alter bei Beginn"_t, "Riskanter Konsum"_t,      "Alter Erstkonsum"_t,    "Hauptdiagnose"_t};
    using namespace feld::diag;
    if (tabelle == Tabelle::Diag && istAntwort(feld)) {
        return verbinde(gruppenname(gruppeVon(feld)), ", "_t, fragen.at(static_cast<std::size_t>(platzVon(feld) - 1)));
    }
    if (tabelle == Tabelle::Diag && feld == bitfeld) {
        return std::string("Bitfeld"_t);
    }
    const auto& felder = satzfelder(tabelle);
    return static_cast<std::size_t>(feld) <= felder.size() ? feldAus(felder, feld).name : std::string();
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
    const auto prüfe = [&](Tabelle tabelle, Satzprüfung prüfeSatz) {
        const auto& pfad = pfade.von(tabelle);
        if (dateien.fehlt(pfad)) {
            throw Laufzeitfehler(verbinde("Die Tabelle \""_t, pfadtext(pfad), "\" fehlt."_t));
        }
        return prüfeTabelle(dateien.lies(pfad)->text(), {befunde, tabelle}, prüfeSatz, bezüge);
    };
    Prüfbericht bericht;
    bericht.klienten = prüfe(Tabelle::Kern, prüfeKlientensatz);
    bericht.betreuungen = prüfe(Tabelle::Betr, prüfeBetreuungssatz);
    prüfe(Tabelle::Diag, prüfeDiagnosesatz);
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
        if (const auto name = feldname(*befund.ort.tabelle, befund.ort.feld); !name.empty()) {
            ort += verbinde(" ("_t, name, ')');
        }
    }
    return verbinde(befund.istHinweis() ? "Hinweis: "_t : ""_t, ort, ": "_t, befund.text, "; "_t, befund.folge);
}

int pruefe(const fs::path& programmordner, std::ostream& aus)
{
    const auto pfade = bildeBestandspfade(fs::absolute(programmordner / ".").lexically_normal());
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
