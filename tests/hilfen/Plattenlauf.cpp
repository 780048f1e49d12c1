#include "hilfen/Plattenlauf.h"

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

} // namespace

std::filesystem::path plattenordner()
{
    return std::filesystem::temp_directory_path().root_path() / "platte" / "Tolvek7";
}

Plattenumgebung::Plattenumgebung(Platte& platte)
    : Testumgebung(std::make_unique<Plattenzugriff>(platte), plattenordner())
{}

Antwort Plattenumgebung::zeigeMeldung(const Meldung& meldung)
{
    meldungen.push_back(meldung);
    return meldung.knöpfe == Knöpfe::JaNein ? Antwort::Ja : Antwort::OK;
}

bool Plattenlauf::starte()
{
    programm.starte();
    return läuft();
}

void PrintTo(const Ausfallfall& fall, std::ostream* strom)
{
    *strom << fall.name;
}

const std::vector<Ausfallfall>& ausfallfälle()
{
    static const auto alle = [] {
        std::vector<Ausfallfall> fälle{
            {"erster-start", [](Platte& platte, const Pfade& pfade) { platte.lege(pfade.programm / "tolvek7", ""); }},
            {"start", legeBestand},
        };
        for (const auto& handlung : schreibhandlungen()) {
            const bool istImport = handlung.name == "import";
            fälle.push_back({std::string(handlung.name), istImport ? legeAltesAn : legeBestand, &handlung});
        }
        return fälle;
    }();
    return alle;
}
