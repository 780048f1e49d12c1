#include "ablauf/Anweisungen.h"
#include "ablauf/Programmdateien.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"
#include "umgebung/Meldungsworte.h"

#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Satzaufbau.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

void heute(Lauf& lauf, const Anweisung& anweisung)
{
    lauf.umgebung().setzeHeute(*leseDatum(alsUtf8(anweisung.argument(0))));
}

void datei(Lauf& lauf, const Anweisung& anweisung)
{
    schreibeDatei(lauf.imProgramm(anweisung.argument(0)), alsDateiinhalt(anweisung.zeilen));
}

void rohdatei(Lauf& lauf, const Anweisung& anweisung)
{
    schreibeDatei(lauf.imProgramm(anweisung.argument(0)), alsTabellentext(anweisung.argument(1)));
}

void legeTabellenAn(const Lauf& lauf)
{
    for (const auto* name : {U"kernDat", U"betrDat", U"diagDat"}) {
        for (const auto* endung : {U".txt", U".bak"}) {
            const fs::path pfad = lauf.imProgramm(std::u32string(U"Daten/") + name + endung);
            if (!fs::exists(pfad)) {
                schreibeDatei(pfad, {});
            }
        }
    }
}

/// The place of the field, given by name or by position from 1, in the layout.
std::size_t feldstelle(const std::vector<Satzfeld>& aufbau, const std::string& feld)
{
    const auto ort = std::find_if(aufbau.begin(), aufbau.end(), [&](const auto& f) { return f.name == feld; });
    if (ort != aufbau.end()) {
        return static_cast<std::size_t>(ort - aufbau.begin());
    }
    const auto nummer = leseGanzzahl32(feld);
    if (!nummer || *nummer < 1 || static_cast<std::size_t>(*nummer) > aufbau.size()) {
        throw Scheitern("ein Feld des Satzes oder seine Stelle", zeige(feld));
    }
    return static_cast<std::size_t>(*nummer) - 1;
}

/// The values of a new record, then the fields that the statement names behind its keys.
std::vector<std::string> bildeSatz(const std::vector<Satzfeld>& aufbau, const Anweisung& anweisung,
                                   std::size_t ersterWert)
{
    std::vector<std::string> werte;
    std::transform(aufbau.begin(), aufbau.end(), std::back_inserter(werte),
                   [](const auto& feld) { return feld.vorgabe; });
    for (std::size_t i = ersterWert; i < anweisung.argumente.size(); ++i) {
        const std::string argument = alsTabellentext(anweisung.argument(i));
        const std::size_t gleich = argument.find('=');
        werte.at(feldstelle(aufbau, argument.substr(0, gleich))) = argument.substr(gleich + 1);
    }
    return werte;
}

std::string verbunden(const std::vector<std::string>& werte)
{
    std::string satz = werte.front();
    std::for_each(werte.begin() + 1, werte.end(), [&](const auto& wert) { satz.append(1, trenner).append(wert); });
    return satz;
}

void klient(Lauf& lauf, const Anweisung& anweisung)
{
    legeTabellenAn(lauf);
    auto werte = bildeSatz(klientenfelder(), anweisung, 1);
    werte[1] = alsTabellentext(anweisung.argument(0));
    hängeZeileAn(lauf.imProgramm(U"Daten/kernDat.txt"), verbunden(werte));
}

void betreuung(Lauf& lauf, const Anweisung& anweisung)
{
    constexpr std::size_t schlüssel = 4;
    legeTabellenAn(lauf);
    auto werte = bildeSatz(betreuungsfelder(), anweisung, schlüssel);
    for (std::size_t i = 0; i < schlüssel; ++i) {
        werte[i] = alsTabellentext(anweisung.argument(i));
    }
    hängeZeileAn(lauf.imProgramm(U"Daten/betrDat.txt"), verbunden(werte));
}

void diagnose(Lauf& lauf, const Anweisung& anweisung)
{
    constexpr std::size_t schlüssel = 2;
    legeTabellenAn(lauf);
    auto werte = bildeSatz(diagnosefelder(), anweisung, schlüssel);
    for (std::size_t i = 0; i < schlüssel; ++i) {
        werte[i] = alsTabellentext(anweisung.argument(i));
    }
    // the care main page ends the record with one delimiter more
    hängeZeileAn(lauf.imProgramm(U"Daten/diagDat.txt"), verbunden(werte) + trenner);
}

void ordner(Lauf& lauf, const Anweisung& anweisung)
{
    fs::create_directories(lauf.imProgramm(anweisung.argument(0)));
}

void kopiere(Lauf& lauf, const Anweisung& anweisung)
{
    const fs::path quelle = lauf.draußen(anweisung.argument(0));
    const fs::path ziel = lauf.imProgramm(anweisung.hatArgument(1) ? anweisung.argument(1) : std::u32string());
    fs::create_directories(ziel);
    kopiereNach(quelle, fs::is_directory(quelle) ? ziel : ziel / quelle.filename());
}

void entferne(Lauf& lauf, const Anweisung& anweisung)
{
    fs::remove_all(lauf.imProgramm(anweisung.argument(0)));
}

void sperre(Lauf& lauf, const Anweisung& anweisung)
{
    lauf.umgebung().sperre(lauf.imProgramm(anweisung.argument(0)));
}

void zweiteInstanz(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    lauf.umgebung().meldeZweiteInstanz();
}

void ohneTabellenprogramm(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    lauf.umgebung().entferneTabellenprogramm();
}

void starte(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    lauf.starte();
}

void antworte(Lauf& lauf, const Anweisung& anweisung)
{
    lauf.umgebung().stelleAntwortBereit(antwortVon(anweisung.argument(0)));
}

void dateiwahl(Lauf& lauf, const Anweisung& anweisung)
{
    const auto& pfad = anweisung.argument(0);
    lauf.umgebung().stelleDateiBereit(pfad == U"abbrechen" ? std::nullopt : std::optional(lauf.imProgramm(pfad)));
}

} // namespace

Handlertafel aufbauhandler()
{
    return {
        {"heute", heute},
        {"datei", datei},
        {"rohdatei", rohdatei},
        {"klient", klient},
        {"betreuung", betreuung},
        {"diagnose", diagnose},
        {"ordner", ordner},
        {"kopiere", kopiere},
        {"entferne", entferne},
        {"sperre", sperre},
        {"zweite-instanz", zweiteInstanz},
        {"ohne-tabellenprogramm", ohneTabellenprogramm},
        {"starte", starte},
        {"antworte", antworte},
        {"dateiwahl", dateiwahl},
    };
}
