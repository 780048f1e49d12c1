#include "store/moBereinigeDatum.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Reparatur.h"
#include "store/Tabellenleser.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <memory>
#include <span>

namespace fs = std::filesystem;

namespace {

/// A date field of a table, and the text in it that stands for no date.
struct Datumsfeldstelle {
    int feld;
    std::string_view ausnahme;
};

constexpr Datumsfeldstelle klientendaten[] = {{10, "unbekannt"_t}};
/// The begin of an episode has no text that stands for no date.
constexpr Datumsfeldstelle betreuungsdaten[] = {{3, {}}, {4, "offen"_t}};

/// Where the year begins: behind the last point, at the start without one.
std::size_t jahresanfang(std::string_view datum)
{
    const auto punkt = datum.rfind('.');
    return punkt == std::string_view::npos ? 0 : punkt + 1;
}

bool brauchtReparatur(std::string_view datum)
{
    return datum.size() - jahresanfang(datum) < 3;
}

bool brauchtReparatur(std::string_view zeile, std::span<const Datumsfeldstelle> stellen)
{
    return std::ranges::any_of(stellen, [&](const auto& s) { return brauchtReparatur(getFeld(zeile, s.feld)); });
}

bool brauchtReparatur(const fs::path& tabelle, std::span<const Datumsfeldstelle> stellen)
{
    Tabellenleser leser(tabelle);
    while (const auto zeile = leser.nächste()) {
        if (brauchtReparatur(*zeile, stellen)) {
            return true;
        }
    }
    return false;
}

/// Years 0 to 8 were written in this century when the four digits came in.
std::string repariert(std::string_view datum)
{
    if (datum.find('.') == std::string_view::npos) {
        zeigeMeldung("Fehler"_t);
    }
    const auto jahr = datum.substr(jahresanfang(datum));
    return verbinde(datum.substr(0, jahresanfang(datum)), führendeZahl(jahr) < 9 ? "20"_t : "19"_t, jahr);
}

std::string mitRepariertemFeld(const std::string& zeile, const Datumsfeldstelle& stelle)
{
    const auto datum = getFeld(zeile, stelle.feld);
    const bool istAusnahme = !stelle.ausnahme.empty() && datum == stelle.ausnahme;
    return istAusnahme || !brauchtReparatur(datum) ? zeile : ersetzeFeld(zeile, stelle.feld, repariert(datum));
}

/// `ort` tells where the line stands, for the failure of a line that lacks the field.
std::string repariert(std::string_view zeile, std::span<const Datumsfeldstelle> stellen, std::string_view ort)
{
    try {
        std::string neu(zeile);
        for (const auto& stelle : stellen) {
            neu = mitRepariertemFeld(neu, stelle);
        }
        return neu;
    } catch (const Laufzeitfehler& fehler) {
        throw Laufzeitfehler(verbinde(ort, ": "_t, fehler.text()));
    }
}

void repariere(const fs::path& tabelle, std::span<const Datumsfeldstelle> stellen)
{
    auto leser = std::make_unique<Tabellenleser>(tabelle);
    zustand().umgebung.dateien().ersetze(tabelle, reparaturdatei(), [&](Schreiber& schreiber) {
        while (const auto zeile = leser->nächste()) {
            schreiber.zeile(repariert(*zeile, stellen, ortsangabe(tabelle, leser->nummer())));
        }
        leser.reset();
    });
}

std::string ersteZeile(const fs::path& tabelle)
{
    return std::string(Tabellenleser(tabelle).nächste().value_or(std::string_view()));
}

} // namespace

void bereinigeDatum()
{
    auto& stand = zustand();
    const auto klient = ersteZeile(stand.pfade.kernDat);
    if (klient.empty()) {
        return;
    }
    stand.gefundeneKernFelder = anzahlFelder(klient);
    const auto betreuung = ersteZeile(stand.pfade.betrDat);
    stand.gefundeneBetrFelder = anzahlFelder(betreuung.empty() ? klient : betreuung);

    const bool klienten = brauchtReparatur(stand.pfade.kernDat, klientendaten);
    const bool betreuungen = brauchtReparatur(stand.pfade.betrDat, betreuungsdaten);
    if (klienten) {
        repariere(stand.pfade.kernDat, klientendaten);
    }
    if (betreuungen) {
        repariere(stand.pfade.betrDat, betreuungsdaten);
    }
}
