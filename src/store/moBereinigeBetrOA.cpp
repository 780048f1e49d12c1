#include "store/moBereinigeBetrOA.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "satz/moHelferlein.h"
#include "store/Vorgang.h"

#include <unordered_map>

namespace {

constexpr char offen = 'o';
constexpr char abgeschlossen = 'a';
constexpr char ohneBetreuung = '\0';

using Statustafel = std::unordered_map<std::int32_t, char>;

/// The number in the field; nothing for a line that can't be read.
std::optional<std::int32_t> nummerIn(std::string_view zeile, int feld)
{
    return zeile.size() > satzgrenze::zeilenlänge ? std::nullopt : leseGanzzahl32(getFeld(zeile, feld));
}

Statustafel statusAusBetreuungen(std::string_view betreuungen)
{
    Statustafel tafel;
    Zeilen zeilen(betreuungen);
    while (const auto zeile = zeilen.nächste()) {
        const auto kernID = nummerIn(*zeile, feld::betr::kernID);
        if (!kernID) {
            continue;
        }
        auto& status = tafel[*kernID];
        if (status != offen) {
            status = getFeld(*zeile, feld::betr::ende) == "offen"_t ? offen : abgeschlossen;
        }
    }
    return tafel;
}

std::string mitStatus(std::string_view zeile, const Statustafel& tafel)
{
    const auto kernID = nummerIn(zeile, feld::kern::kernID);
    if (!kernID || anzahlFelder(zeile) < feld::kern::betrao) {
        return std::string(zeile);
    }
    const auto ort = tafel.find(*kernID);
    return ersetzeFeld(zeile, feld::kern::betrao, verbinde(ort == tafel.end() ? ohneBetreuung : ort->second));
}

std::string mitStatusAller(std::string_view klienten, const Statustafel& tafel)
{
    std::string neu;
    neu.reserve(klienten.size());
    Zeilen zeilen(klienten);
    while (const auto zeile = zeilen.nächste()) {
        neu.append(mitStatus(*zeile, tafel)).append("\r\n");
    }
    return neu;
}

} // namespace

void bereinigeBetrOA(const Bestand& bestand)
{
    try {
        const auto klienten = bestand.inhalt(Tabelle::Kern);
        const auto tafel = statusAusBetreuungen(bestand.inhalt(Tabelle::Betr)->text());
        Vorgang vorgang(bestand);
        vorgang.setzeInhalt(Tabelle::Kern, mitStatusAller(klienten->text(), tafel));
        vorgang.bestätige();
    } catch (const Laufzeitfehler&) {
        // the status only decorates the list: the table stays as it was, and the next start tries again
    }
}
