#include "satz/Diagnosesatz.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"

#include <cstddef>

namespace {

/// Where the text goes on behind its delimiter number `anzahl`; its end if it has fewer.
std::size_t hinterTrenner(std::string_view text, int anzahl)
{
    std::size_t ort = 0;
    for (; anzahl > 0; --anzahl) {
        const std::size_t fund = text.find(trenner, ort);
        if (fund == std::string_view::npos) {
            return text.size();
        }
        ort = fund + 1;
    }
    return ort;
}

} // namespace

// Imported records write an answer that was not given as a number of its own: 9 for eating disorders, 99 for
// gaming machines (the other forms of gambling don't), 0 everywhere else.
bool istLeerwert(int gruppe, int platz, std::string_view wert)
{
    if (wert.empty()) {
        return true;
    }
    if (platz == ICDStelle4 && istGruppe(gruppe, Gruppenart::Essstörung)) {
        return wert == "9"_t;
    }
    if (platz == ICDStelle4 && gruppe == geldspielautomaten) {
        return wert == "99"_t;
    }
    return wert == "0"_t || (platz == Riskant && wert == antworttext::keine);
}

Blockteile zerlegeDSDiag(std::string_view dsDiag, int gruppe)
{
    const std::size_t anfang = hinterTrenner(dsDiag, felderJeGruppe * (gruppe - 1));
    const std::string_view rest = dsDiag.substr(anfang);
    const std::size_t länge = hinterTrenner(rest, felderJeGruppe);
    return {dsDiag.substr(0, anfang), rest.substr(0, länge), rest.substr(länge)};
}

std::string_view blockfeld(std::string_view dsDiag, int gruppe, int platz)
{
    return getFeld(dsDiag, blockposition(gruppe, platz));
}

std::int16_t getHDGruppenNr(std::string_view dsDiag)
{
    for (std::int16_t gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        if (blockfeld(dsDiag, gruppe, HDMarke) == "1"_t) {
            return gruppe;
        }
    }
    return -1;
}

bool istGruppeBelegt(std::string_view dsDiag, int gruppe)
{
    for (int platz = 1; platz <= felderJeGruppe; ++platz) {
        if (!istLeerwert(gruppe, platz, blockfeld(dsDiag, gruppe, platz))) {
            return true;
        }
    }
    return false;
}

std::int64_t leseBitfeld(std::string_view dsDiag)
{
    const std::string_view text = getrimmt(getFeld(dsDiag, bitfeldposition));
    if (text.empty()) {
        return 0;
    }
    const auto bits = leseGanzzahl64(text);
    if (!bits) {
        throw Laufzeitfehler(
            verbinde("Das Bitfeld der Problembereiche im Diagnosesatz ist keine ganze Zahl: "_t, text));
    }
    return *bits;
}

bool hatBit(std::int64_t bits, int gruppe)
{
    return (static_cast<std::uint64_t>(bits) & static_cast<std::uint64_t>(gruppenbit(gruppe))) != 0;
}

std::vector<int> vorhandeneGruppen(std::string_view dsDiag)
{
    const std::int64_t bits = leseBitfeld(dsDiag);
    std::vector<int> gruppen;
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        if (hatBit(bits, gruppe) || istGruppeBelegt(dsDiag, gruppe)) {
            gruppen.push_back(gruppe);
        }
    }
    return gruppen;
}

void schreibeGruppeInDSDiag(std::string& dsDiag, int gruppe, std::string_view block)
{
    const Blockteile teile = zerlegeDSDiag(dsDiag, gruppe);
    dsDiag = verbinde(teile.davor, block, teile.dahinter);
}

void schreibeBitFeldInDSDiag(std::string& dsDiag, std::string_view text)
{
    dsDiag = verbinde(felder(dsDiag, blockposition(1, Konsumart), bitfeldposition - 1), text, trenner);
}

void trageGruppeEin(std::string& dsDiag, int gruppe)
{
    schreibeBitFeldInDSDiag(dsDiag, alsText(leseBitfeld(dsDiag) | gruppenbit(gruppe)));
}

void löscheGruppe(std::string& dsDiag, int gruppe)
{
    const auto bits = static_cast<std::uint64_t>(leseBitfeld(dsDiag)) - static_cast<std::uint64_t>(gruppenbit(gruppe));
    schreibeBitFeldInDSDiag(dsDiag, alsText(static_cast<std::int64_t>(bits)));
    schreibeGruppeInDSDiag(dsDiag, gruppe, std::string(felderJeGruppe, trenner));
}

void nimmHDMarke(std::string& dsDiag, int gruppe)
{
    const std::string antworten = felder(dsDiag, blockposition(gruppe, Konsumart), blockposition(gruppe, HDMarke) - 1);
    schreibeGruppeInDSDiag(dsDiag, gruppe, verbinde(antworten, trenner));
}
