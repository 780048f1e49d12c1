#include "app/Arbeitsort.h"
#include "app/moMain.h"
#include "clients/frmInfo.h"
#include "export/Exportlauf.h"
#include "export/frmExport.h"
#include "hilfen/Testumgebung.h"
#include "import/Altfelder.h"
#include "import/Anweisungsdatei.h"
#include "platform/calc/Rechenprogramm.h"
#include "platform/elemente/triCtlJaNein.h"
#include "platform/qt/Handbuchstellen.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Zahl.h"
#include "satz/Problemgruppen.h"
#include "satz/Satzgrenzen.h"
#include "satz/WeitereDiagnosen.h"
#include "spreadsheet/Auswertungsspalten.h"
#include "store/Sicherungen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

// Texts for people cannot be made from the tables of the program, so they repeat what stands there. Whoever changes a
// constant finds here which sentence of which file has to change with it.

namespace {

/// What a file has to say, since a constant is what it is. In UTF-8; blanks and line ends count the same.
struct Textangabe {
    std::string woher; ///< where the constant stands, below src/
    std::string datei;
    std::string satz;
};

constexpr auto handbuch = "docs/handbuch/handbuch.md";
constexpr auto leitfaden = "docs/guide.md";
constexpr auto manual = "paket/tolvek7.1";
constexpr auto liesmich = "paket/LIESMICH.txt";
constexpr auto liesmichWindows = "paket/windows/LIESMICH.txt";
constexpr auto info = "src/clients/frmInfo.cpp";

/// Every run of white space as one blank, as a page is read whatever its lines are.
std::string inEinerZeile(std::string_view text)
{
    std::string zeile;
    for (const char zeichen : text) {
        const bool leer = zeichen == ' ' || (zeichen >= '\t' && zeichen <= '\r');
        if (!leer || zeile.empty() || zeile.back() != ' ') {
            zeile.push_back(leer ? ' ' : zeichen);
        }
    }
    return zeile;
}

std::string inhaltVon(const std::string& datei)
{
    std::ifstream strom(std::string(TOLVEK_QUELLEN) + "/" + datei, std::ios::binary);
    EXPECT_TRUE(strom) << datei;
    std::string text{std::istreambuf_iterator<char>(strom), {}};
    std::erase(text, '\\');
    return inEinerZeile(text);
}

std::string utf8(std::string_view text)
{
    return alsUtf8(text);
}

std::string zahl(std::int64_t wert)
{
    return std::to_string(wert);
}

/// As it is written in a sentence.
std::string zahlwort(std::size_t wert)
{
    constexpr std::array worte{"null",   "eine", "zwei", "drei", "vier", "fünf", "sechs",
                               "sieben", "acht", "neun", "zehn", "elf",  "zwölf"};
    return wert < worte.size() ? worte.at(wert) : zahl(static_cast<std::int64_t>(wert));
}

std::string name(const std::filesystem::path& pfad)
{
    return pfad.filename().string();
}

std::string grenzen(std::size_t memo)
{
    return "Erlaubt sind " + zahl(static_cast<std::int64_t>(memo)) + " Zeichen";
}

std::vector<Textangabe> ausDenGrenzen()
{
    constexpr auto woher = "satz/Satzgrenzen.h";
    constexpr auto altdaten = "docs/altdaten.md";
    const auto nummern = "number, 1 to " + zahl(satzgrenze::höchsteNummer);
    return {
        {woher, altdaten, "| 1 | fixed | " + nummern + " |"},
        {woher, altdaten, "| 1 | fixed | `klientNr` | " + nummern + " |"},
        {"import/Altfelder.h", altdaten, zahl(altfeld::betreuung::alter - 1) + " fields. Kinds:"},
        {"import/Altfelder.h", altdaten,
         std::string("`") + kernanweisungsdatei + "` has " + zahl(altspalte::kern::anzahl) + " records, `" +
             diagnoseanweisungsdatei + "` " + zahl(altspalte::diag::anzahl)},
        {"import/Anweisungsdatei.h", altdaten,
         "A record is " + zahl(2 + 2 * static_cast<std::int64_t>(Spaltenanweisung::paarzahl)) + " values"},
        {"import/Anweisungsdatei.h", altdaten,
         "and " + zahl(static_cast<std::int64_t>(Spaltenanweisung::paarzahl)) + " pairs of source text"},
        {woher, handbuch, "Eine Notiz darf " + zahl(satzgrenze::memolänge) + " Zeichen lang sein"},
        {woher, handbuch, grenzen(satzgrenze::memolänge)},
        {woher, handbuch, "Die Nummern reichen bis " + zahl(satzgrenze::höchsteNummer)},
        {"store/Sicherungen.h", handbuch, "ältere Stände, die " + zahlwort(aufgehobeneSätze) + " neuesten"},
    };
}

/// Questions of the dialogue, without the box for the main diagnosis.
std::size_t fragenzahl(Gruppenart art)
{
    std::set<std::size_t> zahlen;
    for (const auto& reihe : gruppenreihen) {
        EXPECT_TRUE(reihe.art == Gruppenart::Substanz || reihe.art == Gruppenart::MissbrauchOderSpiel ||
                    reihe.art == Gruppenart::Essstörung)
            << "say here what the handbook calls the new kind of groups";
        if (reihe.art == art) {
            zahlen.insert(static_cast<std::size_t>(std::ranges::count(reihe.fragen, true, &Blockfrage::gefragt)) - 1);
        }
    }
    EXPECT_EQ(zahlen.size(), 1U)
        << "groups of one kind ask differently: the handbook has to tell them apart, and this test too";
    return *zahlen.begin();
}

/// The form with digits in it: "32.10" for "##.##".
std::string beispiel(std::string_view muster)
{
    std::string text(muster);
    std::size_t ziffer = 0;
    for (auto& zeichen : text) {
        constexpr std::string_view ziffern = "3210000000";
        zeichen = zeichen == '#' ? ziffern.at(ziffer++) : zeichen;
    }
    return text;
}

std::vector<Textangabe> ausDenDiagnosen()
{
    std::string formen;
    for (const auto muster : diagnosemuster) {
        formen += (formen.empty() ? "" : muster == diagnosemuster.back() ? " oder " : ", ") + beispiel(muster);
    }
    const auto lang = beispiel(diagnosemuster.back());
    const auto buchstaben =
        "den Buchstaben " + utf8(diagnosearten[0].buchstabe) + " oder " + utf8(diagnosearten[1].buchstabe);
    return {
        {"satz/moData.h", handbuch, "wählt einen der " + zahl(höchsteGruppe) + " Bereiche"},
        {"satz/moData.h", leitfaden, "one of the " + zahl(höchsteGruppe) + " problem groups"},
        {"satz/Problemgruppen.h", handbuch,
         "bei Stoffen " + zahlwort(fragenzahl(Gruppenart::Substanz)) + ", bei Mißbrauch und Glücksspiel " +
             zahlwort(fragenzahl(Gruppenart::MissbrauchOderSpiel)) + ", bei Eßstörungen " +
             zahlwort(fragenzahl(Gruppenart::Essstörung))},
        {"satz/WeitereDiagnosen.h", handbuch, "So sieht eine weitere Diagnose aus: " + formen + "."},
        {"satz/WeitereDiagnosen.h", handbuch,
         "ohne " + buchstaben + " eingetragen, also `" + lang + "` statt " + utf8(diagnosearten[0].buchstabe) + lang},
    };
}

std::vector<Textangabe> ausDerAuswertung()
{
    using namespace auswertungsspalte;
    constexpr auto woher = "spreadsheet/Auswertungsspalten.h";
    const auto spannen = [](int von, int bis) { return zahl(von) + " bis " + zahl(bis); };
    std::vector<Textangabe> angaben{
        {woher, handbuch, "| " + zahl(fall) + " | fallnr |"},
        {woher, handbuch, "| " + zahl(betreuungsnummer) + " | betrnr |"},
        {woher, handbuch,
         "| " + spannen(klient, hauptdiagnose - 1) + " | " + utf8(klientenspalten.front().kopf) + " … " +
             utf8(klientenspalten.back().kopf) + " |"},
        {woher, handbuch, "| " + spannen(betreuung, letzte) + " | wie im Blatt `BetrDat` |"},
        {woher, handbuch, "bleiben die Spalten " + spannen(hauptdiagnose, betreuung - 1) + " leer"},
        {woher, handbuch, "an den Köpfen der Spalten " + spannen(hauptdiagnose + 1, hauptdiagnose + 5) + " gehören"},
    };
    for (int spalte = hauptdiagnose; const auto& kopf : hdSpalten) {
        angaben.push_back({woher, handbuch, "| " + zahl(spalte++) + " | " + utf8(kopf.kopf) + " |"});
    }
    return angaben;
}

std::vector<Textangabe> ausDenDateinamen()
{
    const auto pfade = bildePfade("x");
    const auto ordner = utf8(exportort::ordner);
    const auto jahresordner = ordner + "/" + utf8(exportort::jahresordner);
    const auto kern = "`" + utf8(exportort::kern) + "`";
    const auto diagnose = "`" + utf8(exportort::diagnose) + "`";
    std::vector<Textangabe> angaben{
        {"export/Exportlauf.h", handbuch, kern + " und " + diagnose + " liegen im Ordner `" + jahresordner + "` mit"},
        {"export/Exportlauf.h", handbuch, "In `" + jahresordner + "jjjj` entstehen " + kern + " und " + diagnose},
        {"export/Exportlauf.h", manual, "~/Tolvek7/" + ordner},
        {"zustand/Zustand.cpp", handbuch, "Plätze der Fenster (`" + name(pfade.ini) + "`)"},
        {"zustand/Zustand.cpp", manual, "~/Tolvek7/" + name(pfade.ini)},
        {"zustand/Zustand.cpp", handbuch, "steht in `" + name(pfade.importListe) + "`"},
        {"store/Bestandspfade.cpp", manual, "~/Tolvek7/" + name(pfade.daten)},
        {"store/Bestandspfade.cpp", handbuch,
         "`" + name(pfade.kernDat) + "` (Klienten), `" + name(pfade.betrDat) + "` (Betreuungen), `" +
             name(pfade.diagDat) + "` (Diagnosen)"},
        {"store/Bestandspfade.cpp", handbuch,
         "liegen `" + name(pfade.kernBak) + "`, `" + name(pfade.betrBak) + "` und `" + name(pfade.diagBak) + "`"},
        {"store/Bestandspfade.cpp", handbuch, "`" + name(pfade.daten) + "/" + name(pfade.sicherungen) + "/JJJJ-MM-TT"},
        {"import/Anweisungsdatei.h", manual,
         std::string("/usr/share/tolvek7/") + kernanweisungsdatei + " \", \" " + diagnoseanweisungsdatei},
        {"app/Arbeitsort.h", handbuch, std::string("im Ordner `") + ordnername + "` in Ihrem persönlichen Ordner"},
        {"app/Arbeitsort.h", manual, std::string("sonst im Ordner .I ") + ordnername + " des persönlichen Ordners"},
        {"app/Arbeitsort.h", handbuch, std::string("im Ordner `") + ordnername + "` Ihrer Dokumente"},
        {"app/Arbeitsort.h", "README.md", std::string("in `~/") + ordnername + "`"},
    };
    for (const auto* datei : {liesmich, liesmichWindows}) {
        angaben.push_back({"zustand/Zustand.cpp, export/Exportlauf.h", datei,
                           "in diesem Ordner: " + name(pfade.daten) + ", " + ordner + ", " + name(pfade.ini) + "."});
        angaben.push_back({"app/Arbeitsort.h", datei, std::string("Ordner \"") + ordnername + "\""});
    }
    angaben[angaben.size() - 1].satz += " Ihrer Dokumente";
    return angaben;
}

std::vector<Textangabe> ausDemAufruf()
{
    std::vector<Textangabe> angaben;
    for (const auto& einer : schalter) {
        const std::string wort(einer.name);
        angaben.push_back({"app/Befehlszeile.h", "src/app/Befehlszeile.cpp", "  " + wort});
        angaben.push_back({"app/Befehlszeile.h", manual, wort});
        if (einer.art == Aufrufart::Muster || einer.art == Aufrufart::Prüfung) {
            angaben.push_back({"app/Befehlszeile.h", handbuch, "`tolvek7 " + wort});
        }
        if (einer.art == Aufrufart::Muster) {
            for (const auto* datei : {liesmich, "paket/windows/ueben.cmd", "paket/tolvek7.desktop"}) {
                angaben.push_back({"app/Befehlszeile.h", datei, " " + wort});
            }
        }
    }
    for (auto& angabe : angaben) {
        angabe.satz = inEinerZeile(angabe.satz);
    }
    angaben.push_back({"app/moMain.h", handbuch, "Im Titel steht „" + utf8(mustermarke) + "“"});
    angaben.push_back({"app/moMain.h", manual, "der Titel beginnt mit " + utf8(mustermarke)});
    return angaben;
}

/// The answers in the order of clicks, each with the name of its colour.
std::vector<Textangabe> ausDenAntworten()
{
    const std::map<Farbe, std::string> farbnamen{{farbe::rot, "rot"}, {farbe::weiß, "weiß"}, {farbe::grau, "grau"}};
    class Träger : public Bildschirm {
    public:
        Träger() : Bildschirm("frmProbe"_t) {}
        triCtlJaNein feld{*this, "feld"_t};
    } träger;
    std::vector<std::string> farbige;
    std::vector<std::string> antworten;
    for (int i = 0; i < 3; ++i) {
        const auto farbname = farbnamen.find(träger.feld.hintergrund());
        EXPECT_NE(farbname, farbnamen.end()) << "give the colour of " << träger.feld.text() << " a name here";
        antworten.push_back(träger.feld.text());
        farbige.push_back("„" + utf8(träger.feld.text()) + "“ (" +
                          (farbname == farbnamen.end() ? "?" : farbname->second) + ")");
        träger.feld.klicke();
    }
    auto sortiert = antworten;
    auto liste = werte::texte(werte::kurz);
    std::ranges::sort(sortiert);
    std::ranges::sort(liste);
    EXPECT_EQ(sortiert, liste)
        << "src/platform/elemente/triCtlJaNein.cpp shows other answers than the list werte::kurz";
    constexpr auto woher = "platform/elemente/triCtlJaNein.cpp";
    return {
        {woher, handbuch, "ein Klick wechselt von " + farbige[0] + " zu " + farbige[1] + " zu " + farbige[2]},
        {woher, info,
         "Antwortfeld (" + utf8(antworten[0]) + ", " + utf8(antworten[1]) + ", " + utf8(antworten[2]) + ")"},
    };
}

std::vector<Textangabe> ausDenTasten()
{
    const std::string f1 = utf8(handbuchtaste);
    constexpr auto woher = "platform/qt/Handbuchstellen.h";
    std::vector<Textangabe> angaben{
        {woher, handbuch, "Mit **" + f1 + "** öffnet das Programm das Handbuch"},
        {woher, handbuch, "| " + f1 + " | Handbuch an der Stelle"},
        {woher, info, "{\"" + f1 + "\"_t, \"öffnet das Handbuch"},
        {woher, leitfaden, f1 + " opens `docs/handbuch/handbuch.md`"},
        {woher, liesmichWindows, "im Programm die Taste " + f1},
    };
    constexpr auto auf = "platform/elemente/Taste.h";
    const bool f4 = Taste{.art = Taste::Art::F4}.klapptAuf() && Taste{.art = Taste::Art::Ab, .alt = true}.klapptAuf();
    const std::string tasten = f4 ? "F4, Alt" : "the keys of Taste::klapptAuf";
    angaben.push_back(
        {auf, handbuch, "| " + tasten + " + Pfeil ab | öffnet eine Auswahlliste, beim Datum den Kalender"});
    angaben.push_back({auf, info, "{\"" + tasten + "+Pfeil ab\"_t, \"öffnet eine Auswahl, beim Datum den Kalender"});
    return angaben;
}

std::vector<Textangabe> ausDemExportUndDerMappe()
{
    const std::map<std::string, std::string> programmnamen{{"soffice", "LibreOffice"}};
    const auto programm = programmnamen.find(erstesRechenprogramm.name);
    EXPECT_NE(programm, programmnamen.end()) << "say here what people call " << erstesRechenprogramm.name;
    const auto rechnet = programm == programmnamen.end() ? "?" : programm->second;
    const auto jahre = frmExport().comboJahr.liste();
    constexpr auto mappe = "platform/calc/Rechenprogramm.h";
    return {
        {"export/frmExport.cpp", handbuch,
         "Die Liste reicht von " + utf8(jahre.front()) + " bis " + utf8(jahre.back())},
        {mappe, handbuch, "öffnet sie in " + rechnet + ", sonst in Ihrem Programm für .xlsx-Dateien"},
        {mappe, handbuch, "Lassen Sie " + rechnet + " oder ein anderes Programm für .xlsx-Dateien einrichten"},
    };
}

class Textangaben : public testing::Test {
protected:
    Testlauf lauf;
    std::map<std::string, std::string> inhalte;

    void prüfe(const std::vector<Textangabe>& angaben)
    {
        for (const auto& [woher, datei, satz] : angaben) {
            auto [ort, neu] = inhalte.try_emplace(datei);
            if (neu) {
                ort->second = inhaltVon(datei);
            }
            EXPECT_TRUE(ort->second.find(satz) != std::string::npos)
                << datei << " repeats what stands in src/" << woher << ". It has to say:\n  " << satz;
        }
    }
};

TEST_F(Textangaben, Limits)
{
    prüfe(ausDenGrenzen());
}

TEST_F(Textangaben, Diagnoses)
{
    prüfe(ausDenDiagnosen());
}

TEST_F(Textangaben, ColumnsOfTheEvaluationSheet)
{
    prüfe(ausDerAuswertung());
}

TEST_F(Textangaben, NamesOfFilesAndFolders)
{
    prüfe(ausDenDateinamen());
}

TEST_F(Textangaben, CommandLine)
{
    prüfe(ausDemAufruf());
}

TEST_F(Textangaben, AnswersAndTheirColours)
{
    prüfe(ausDenAntworten());
}

TEST_F(Textangaben, Keys)
{
    prüfe(ausDenTasten());
}

TEST_F(Textangaben, ExportAndWorkbook)
{
    prüfe(ausDemExportUndDerMappe());
}

} // namespace
