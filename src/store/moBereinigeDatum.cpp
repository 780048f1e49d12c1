#include "store/moBereinigeDatum.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moHelferlein.h"
#include "store/Vorgang.h"

#include <algorithm>
#include <span>
#include <utility>

namespace {

using Felder = std::span<const int>;

constexpr int klientendaten[] = {feld::kern::geburtsdatum};
constexpr int betreuungsdaten[] = {feld::betr::beginn, feld::betr::ende};

/// Where the year begins: behind the last point, at the start without one.
std::size_t jahresanfang(std::string_view datum)
{
    const auto punkt = datum.rfind('.');
    return punkt == std::string_view::npos ? 0 : punkt + 1;
}

/// A line that ends before or within the field was written by halves: what looks like two digits of a year may be the
/// first two of four. The fields are counted where it looks so, not in every line.
bool brauchtReparatur(std::string_view zeile, int feld)
{
    return hatKurzesJahr(getFeld(zeile, feld)) && anzahlFelder(zeile) > feld;
}

/// What the repair wants to know of a table, in one walk.
struct Tabellenbefund {
    bool beginntLeer = true;
    bool brauchtReparatur = false;
};

/// An empty first line ends the walk through the clients: then nothing is repaired.
Tabellenbefund besieh(const Bestand& bestand, Tabelle tabelle, Felder felder)
{
    Tabellenbefund befund;
    bestand.laufe(tabelle, [&](std::string_view zeile, std::size_t nummer) {
        if (nummer == 1) {
            befund.beginntLeer = zeile.empty();
        }
        befund.brauchtReparatur = std::ranges::any_of(felder, [&](int feld) { return brauchtReparatur(zeile, feld); });
        return !befund.brauchtReparatur && !(tabelle == Tabelle::Kern && befund.beginntLeer);
    });
    return befund;
}

/// Years 0 to 8 were written in this century when the four digits came in.
std::string repariert(std::string_view datum, const Bestandsmeldung& meldung)
{
    if (datum.find('.') == std::string_view::npos) {
        meldung("Fehler"_t, Symbol::Keins);
    }
    const auto jahr = datum.substr(jahresanfang(datum));
    return verbinde(datum.substr(0, jahresanfang(datum)), führendeZahl(jahr) < 9 ? "20"_t : "19"_t, jahr);
}

std::string mitReparierterZeile(std::string_view zeile, Felder felder, const Bestandsmeldung& meldung)
{
    std::string neu(zeile);
    for (const int feld : felder) {
        if (brauchtReparatur(neu, feld)) {
            neu = ersetzeFeld(neu, feld, repariert(getFeld(neu, feld), meldung));
        }
    }
    return neu;
}

void repariere(const Bestand& bestand, Vorgang& vorgang, Tabelle tabelle, Felder felder)
{
    std::string inhalt;
    bestand.fürJedeZeile(tabelle, [&](std::string_view zeile, std::size_t nummer) {
        try {
            inhalt.append(mitReparierterZeile(zeile, felder, bestand.meldung())).append("\r\n");
        } catch (const Laufzeitfehler& fehler) {
            throw Laufzeitfehler(verbinde(ortsangabe(bestand.pfade().von(tabelle), nummer), ": "_t, fehler.text()));
        }
    });
    vorgang.setzeInhalt(tabelle, std::move(inhalt));
}

} // namespace

bool hatKurzesJahr(std::string_view datum)
{
    return datum.size() - jahresanfang(datum) < 3;
}

void bereinigeDatum(const Bestand& bestand)
{
    const auto klienten = besieh(bestand, Tabelle::Kern, klientendaten);
    if (klienten.beginntLeer) {
        return;
    }
    const auto betreuungen = besieh(bestand, Tabelle::Betr, betreuungsdaten);
    Vorgang vorgang(bestand);
    if (klienten.brauchtReparatur) {
        repariere(bestand, vorgang, Tabelle::Kern, klientendaten);
    }
    if (betreuungen.brauchtReparatur) {
        repariere(bestand, vorgang, Tabelle::Betr, betreuungsdaten);
    }
    vorgang.bestätige();
}
