#include "hilfen/Schreibhandlungen.h"

#include "hilfen/Altdaten.h"
#include "satz/Satzaufbau.h"
#include "satz/moHelferlein.h"

#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>

namespace {

std::string klient(std::string_view id, std::string_view geburt = "unbekannt", std::string_view status = "a")
{
    return satz({""_t, id, status, "Adler"_t, "Anna"_t, ""_t, ""_t, ""_t, "keine Angaben"_t, geburt, ""_t});
}

std::string betreuung(std::string_view kernID, std::string_view betrID, std::string_view von, std::string_view bis)
{
    auto zeile = erstelleDefaultBetrDS();
    for (const auto& [feld, text] : {std::pair(4, bis), std::pair(3, von), std::pair(2, betrID)}) {
        zeile = ersetzeFeld(zeile, feld, text);
    }
    return verbinde(kernID, zeile.substr(zeile.find(trenner)));
}

std::string diagnose(std::string_view kernID, std::string_view betrID, std::string_view inhalt = "k.A.")
{
    return verbinde(kernID, trenner, betrID, trenner, inhalt, trenner, std::string(244, trenner));
}

void lege(Platte& platte, const std::filesystem::path& pfad, const std::vector<std::string>& zeilen)
{
    platte.lege(pfad, Testlauf::alsInhalt(zeilen));
}

std::string liesQuelle(const std::string& name)
{
    std::ifstream strom(std::string(TOLVEK_QUELLEN) + "/anweisungen/" + name, std::ios::binary);
    if (!strom) {
        throw std::runtime_error("cannot read " + name);
    }
    return {std::istreambuf_iterator<char>(strom), {}};
}

/// Three clients; the second has two episodes and lines that its list doesn't show.
void legeBestand(Platte& platte, const Pfade& pfade)
{
    lege(platte, pfade.kernDat, {klient("1"), klient("2"), klient("3", "01.02.70")});
    lege(platte, pfade.betrDat,
         {betreuung("1", "1", "01.01.2005", "31.12.2005"), betreuung("2", "1", "01.01.2005", "31.12.2005"),
          betreuung("2", "2", "01.02.2006", "28.02.2006")});
    lege(platte, pfade.diagDat,
         {diagnose("1", "1"), diagnose("2", "1"), diagnose("2", "2"), diagnose("2", "9", "alt")});
    lege(platte, pfade.kernBak, {klient("1"), klient("9")});
    lege(platte, pfade.betrBak, {betreuung("9", "1", "01.01.2004", "31.12.2004")});
    lege(platte, pfade.diagBak, {diagnose("9", "1")});
    platte.lege(pfade.ini, "");
}

void legeAltesAn(Platte& platte, const Pfade& pfade)
{
    for (const auto* pfad :
         {&pfade.kernDat, &pfade.betrDat, &pfade.diagDat, &pfade.kernBak, &pfade.betrBak, &pfade.diagBak, &pfade.ini}) {
        platte.lege(*pfad, "");
    }
    lege(platte, pfade.programm / "alt" / "kernDat.txt", {altKlient(1), altKlient(2)});
    lege(platte, pfade.programm / "alt" / "betreuungenDat.txt", {altBetreuung(1, 1), altBetreuung(2, 1)});
    for (const auto* name : {"eKernAnweisung.txt", "eDiagAnweisung.txt"}) {
        platte.lege(pfade.programm / name, liesQuelle(name));
    }
}

void nichts(Plattenlauf& /*lauf*/)
{}

constexpr auto hauptmenü = "frmHauptmenü"_t;

void öffneBetreuung(Plattenlauf& lauf)
{
    lauf.klickeZeile("lvwKlienten"_t, 2);
    lauf.klicke(hauptmenü, "cmdBetreuungBearbeiten"_t);
}

void beginneBetreuung(Plattenlauf& lauf)
{
    lauf.klickeZeile("lvwKlienten"_t, 2);
    lauf.klicke(hauptmenü, "cmdBetreuungHinzufügen"_t);
    lauf.klicke("frmBetreuungZeitraum"_t, "cmdOK"_t);
    lauf.klicke("frmBetreuungZeitraum"_t, "cmdOK"_t);
}

void beginneKlient(Plattenlauf& lauf)
{
    lauf.klicke(hauptmenü, "cmdKlientenHinzufügen"_t);
    lauf.tippe("frmStammdaten"_t, "tbNachname"_t, "Neumann"_t);
}

void beginneImport(Plattenlauf& lauf)
{
    lauf.klicke(hauptmenü, "cmdDatenübernahme"_t);
    lauf.tippe("frmDatenÜbernahme"_t, "tbKernDatAlt"_t, "alt/kernDat.txt"_t);
    lauf.tippe("frmDatenÜbernahme"_t, "tbBetrDatAlt"_t, "alt/betreuungenDat.txt"_t);
}

std::function<void(Plattenlauf&)> klick(std::string_view bildschirm, std::string_view knopf)
{
    return [=](Plattenlauf& lauf) { lauf.klicke(bildschirm, knopf); };
}

/// A press on a button of the main menu that asks back.
std::function<void(Plattenlauf&)> bestätigterKlick(std::string_view knopf, Antwort antwort)
{
    return [=](Plattenlauf& lauf) {
        lauf.antworte(antwort);
        lauf.klicke(hauptmenü, knopf);
    };
}

void wähleZweite(Plattenlauf& lauf)
{
    lauf.klickeZeile("lvwKlienten"_t, 2);
}

} // namespace

std::filesystem::path plattenordner()
{
    return std::filesystem::temp_directory_path().root_path() / "platte" / "Tolvek7";
}

Plattenlauf::Plattenlauf(Platte& platte)
    : umgebung(std::make_unique<Plattenzugriff>(platte), plattenordner()), programm(umgebung)
{}

bool Plattenlauf::starte()
{
    programm.starte();
    return läuft();
}

Element& Plattenlauf::element(std::string_view bildschirm, std::string_view name)
{
    auto* seite = programm.zustand().folge.finde(bildschirm);
    auto* gefunden = seite == nullptr ? nullptr : seite->finde(name);
    if (gefunden == nullptr || !seite->istErreichbar(*gefunden)) {
        throw std::logic_error("not to be reached: " + std::string(bildschirm) + "." + std::string(name));
    }
    return *gefunden;
}

void Plattenlauf::klicke(std::string_view bildschirm, std::string_view knopf)
{
    auto& ziel = element(bildschirm, knopf);
    programm.zustand().ablauf.ereignis([&] { ziel.klicke(); });
}

void Plattenlauf::klickeZeile(std::string_view liste, std::size_t zeile)
{
    auto& ziel = dynamic_cast<Liste&>(element(hauptmenü, liste));
    programm.zustand().ablauf.ereignis([&] { ziel.klickeZeile(zeile); });
}

void Plattenlauf::tippe(std::string_view bildschirm, std::string_view feld, std::string_view text)
{
    auto& ziel = dynamic_cast<Textfeld&>(element(bildschirm, feld));
    programm.zustand().ablauf.ereignis([&] { ziel.gibEin(text, text.size()); });
}

void PrintTo(const Handlung& handlung, std::ostream* strom)
{
    *strom << handlung.name;
}

const std::vector<Handlung>& handlungen()
{
    static const std::vector<Handlung> alle{
        {"ErsterStart", [](Platte& platte, const Pfade& pfade) { platte.lege(pfade.programm / "tolvek7", ""); }, nichts,
         nichts, true},
        {"StartMitReparaturUndSicherung", legeBestand, nichts, nichts, true},
        {"NeueBetreuung", legeBestand, beginneBetreuung, klick("frmBetreuungA"_t, "cmdOK"_t)},
        {"GeaenderteBetreuung", legeBestand, öffneBetreuung, klick("frmBetreuungA"_t, "cmdOK"_t)},
        {"GeloeschteBetreuung", legeBestand, wähleZweite, bestätigterKlick("cmdBetreuungLöschen"_t, Antwort::OK)},
        {"NeuerKlient", legeBestand, beginneKlient, klick("frmStammdaten"_t, "cmdOK"_t)},
        {"GeloeschterKlient", legeBestand, wähleZweite, bestätigterKlick("cmdKlientenLöschen"_t, Antwort::OK)},
        {"Verworfen", legeBestand,
         [](Plattenlauf& lauf) {
             beginneKlient(lauf);
             lauf.klicke("frmStammdaten"_t, "cmdOK"_t);
         },
         bestätigterKlick("cmdRollback"_t, Antwort::Ja)},
        {"Import", legeAltesAn, beginneImport, klick("frmDatenÜbernahme"_t, "cmdOK"_t)},
    };
    return alle;
}
