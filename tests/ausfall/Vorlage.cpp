#include "ausfall/Vorlage.h"

#include "hilfen/Altdaten.h"
#include "platform/text/Text.h"
#include "satz/Satzaufbau.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace {

fs::path schnellerOrt()
{
    std::error_code egal;
    const fs::path imSpeicher = "/dev/shm";
    return fs::is_directory(imSpeicher, egal) ? imSpeicher : fs::temp_directory_path();
}

std::string zeilen(const std::vector<std::string>& sätze)
{
    std::string inhalt;
    for (const auto& einer : sätze) {
        inhalt.append(einer).append("\r\n");
    }
    return inhalt;
}

std::string klient(int kernID, std::string_view name, std::string_view status, std::string_view geburt)
{
    auto neu = erstelleDefaultKernDS();
    neu = ersetzeFeld(neu, 2, std::to_string(kernID));
    neu = ersetzeFeld(neu, 3, status);
    neu = ersetzeFeld(neu, 4, name);
    return ersetzeFeld(neu, 10, geburt);
}

/// Its first two fields are the keys.
std::string mitSchlüssel(const std::string& satz, int kernID, int betrID)
{
    const auto dritter = satz.find(trenner, satz.find(trenner) + 1);
    return verbinde(std::to_string(kernID), trenner, std::to_string(betrID), std::string_view(satz).substr(dritter));
}

std::string betreuung(int kernID, int betrID, std::string_view beginn, std::string_view ende)
{
    const auto neu = ersetzeFeld(mitSchlüssel(erstelleDefaultBetrDS(), kernID, betrID), 3, beginn);
    return ersetzeFeld(neu, 4, ende);
}

std::string diagnose(int kernID, int betrID, std::string_view eintrag)
{
    return ersetzeFeld(mitSchlüssel(erstelleDefaultDiagDS(), kernID, betrID), 3, eintrag);
}

Dreitafel bestand(std::string_view jahrhundert)
{
    const auto tag = [&](std::string_view tagUndMonat, std::string_view jahr) {
        return verbinde(tagUndMonat, '.', jahrhundert, jahr);
    };
    const std::string_view jahrzehnt = jahrhundert.empty() ? "" : "20";
    const auto neuer = [&](std::string_view tagUndMonat, std::string_view jahr) {
        return verbinde(tagUndMonat, '.', jahrzehnt, jahr);
    };
    return {zeilen({klient(1, "Adler"_t, "a", tag("01.02", "70")), klient(2, "Bussard"_t, "o", tag("03.04", "65")),
                    klient(3, "Star"_t, std::string(1, '\0'), "unbekannt"_t)}),
            zeilen({betreuung(1, 1, neuer("01.01", "05"), neuer("31.01", "05")),
                    betreuung(2, 1, neuer("01.03", "05"), neuer("30.06", "05")),
                    betreuung(2, 2, neuer("01.08", "05"), neuer("30.11", "05")),
                    betreuung(2, 3, neuer("01.02", "06"), "offen"_t)}),
            zeilen({diagnose(1, 1, "Injektion"_t), diagnose(2, 1, "Andere Arten"_t), diagnose(2, 2, "Essen/Trinken"_t),
                    diagnose(2, 3, "Schnupfen/Sniefen"_t)})};
}

constexpr std::array namenDerTabellen{"kernDat", "betrDat", "diagDat"};

void schreibe(const fs::path& ordner, const Dreitafel& tabellen, const char* endung)
{
    for (std::size_t i = 0; i < tabellen.size(); ++i) {
        schreibeDatei(ordner / "Daten" / (std::string(namenDerTabellen[i]) + endung), tabellen[i]);
    }
}

Dreitafel lies(const fs::path& ordner, const char* endung)
{
    Dreitafel tabellen;
    for (std::size_t i = 0; i < tabellen.size(); ++i) {
        tabellen[i] = liesDatei(ordner / "Daten" / (std::string(namenDerTabellen[i]) + endung));
    }
    return tabellen;
}

} // namespace

Arbeitsplatz::Arbeitsplatz() : Arbeitsplatz(schnellerOrt())
{}

Arbeitsplatz::Arbeitsplatz(const fs::path& worin)
{
    std::random_device zufall;
    constexpr int versuche = 100;
    for (int i = 0; i < versuche; ++i) {
        m_pfad = worin / ("tolvek7-ausfall-" + std::to_string(zufall()));
        if (fs::create_directory(m_pfad)) {
            fs::permissions(m_pfad, fs::perms::owner_all);
            return;
        }
    }
    throw std::runtime_error("no temporary folder");
}

Arbeitsplatz::~Arbeitsplatz()
{
    std::error_code egal;
    fs::remove_all(m_pfad, egal);
}

std::string liesDatei(const fs::path& pfad)
{
    std::ifstream strom(pfad, std::ios::binary);
    if (!strom) {
        throw std::runtime_error("cannot read " + pfad.string());
    }
    std::ostringstream text;
    text << strom.rdbuf();
    return text.str();
}

void schreibeDatei(const fs::path& pfad, const std::string& inhalt)
{
    fs::create_directories(pfad.parent_path());
    std::ofstream strom(pfad, std::ios::binary | std::ios::trunc);
    strom.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
    if (!strom.flush()) {
        throw std::runtime_error("cannot write " + pfad.string());
    }
}

Dreitafel tabellenIn(const fs::path& ordner)
{
    return lies(ordner, ".txt");
}

Dreitafel bakIn(const fs::path& ordner)
{
    return lies(ordner, ".bak");
}

void legeBestandAn(const fs::path& ordner)
{
    schreibe(ordner, bestand("19"), ".txt");
    schreibe(ordner, bestand("19"), ".bak");
    schreibeDatei(ordner / "Tolvek7.ini", "");
}

void legeBestandMitAlterSicherungAn(const fs::path& ordner)
{
    legeBestandAn(ordner);
    schreibe(ordner, {zeilen({klient(1, "Adler"_t, "a", "01.02.1970")}), "", ""}, ".bak");
}

void legeBestandMitKurzenJahrenAn(const fs::path& ordner)
{
    legeBestandAn(ordner);
    schreibe(ordner, bestand(""), ".txt");
}

void legeAltdatenAn(const fs::path& ordner)
{
    schreibe(ordner, {}, ".txt");
    schreibe(ordner, {}, ".bak");
    schreibeDatei(ordner / "Tolvek7.ini", "");
    for (const auto& datei : fs::directory_iterator(fs::path(TOLVEK_QUELLEN) / "anweisungen")) {
        fs::copy_file(datei.path(), ordner / datei.path().filename());
    }
    const auto alt = erzeugeAltdaten(6, 1, 7);
    schreibeDatei(ordner / "alt" / "kernDat.txt", zeilen(alt.klienten));
    schreibeDatei(ordner / "alt" / "betreuungenDat.txt", zeilen(alt.betreuungen));
}

void legeNichtsAn(const fs::path& ordner)
{
    fs::create_directories(ordner);
}

bool hebtAuf(const fs::path& ordner, const Dreitafel& tabellen)
{
    if (tabellen == Dreitafel{}) {
        return true;
    }
    const auto sätze = ordner / "Daten" / "Sicherungen";
    if (!fs::is_directory(sätze)) {
        return false;
    }
    const fs::directory_iterator alle(sätze);
    return std::any_of(begin(alle), end(alle), [&](const fs::directory_entry& satz) {
        return liesDatei(satz.path() / "kernDat.bak") == tabellen[0] &&
               liesDatei(satz.path() / "betrDat.bak") == tabellen[1] &&
               liesDatei(satz.path() / "diagDat.bak") == tabellen[2];
    });
}

std::string resteIn(const fs::path& ordner)
{
    std::string reste;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner)) {
        const auto name = eintrag.path().filename().string();
        if (name.ends_with(".neu") || name.starts_with("Vorgang.txt") || name == "importDummyVerz" ||
            name == "Tolvek7.probe" || name.find("ummy") != std::string::npos) {
            reste += eintrag.path().string() + "\n";
        }
    }
    return reste;
}
