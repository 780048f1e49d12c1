#include "care/Zeitraumliste.h"

#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/moHelferlein.h"
#include "store/Lesestand.h"
#include "zustand/Zustand.h"

#include <algorithm>

namespace {

std::string tagDavor(std::string_view tag)
{
    return alsDatumstext(ausTageszahl(alsTageszahl(datumAusText(tag).value_or(Datum{})) - 1));
}

bool liegtIn(const Zeitraum& zeitraum, std::string_view tag)
{
    return vergleicheDatum(tag, ">=", zeitraum.von) &&
           (zeitraum.istOffen() || vergleicheDatum(tag, "<=", zeitraum.bis));
}

bool istEigener(const Nachbarn& nachbarn, const Zeitraum& zeitraum)
{
    return zeitraum.von == nachbarn.eigenerBeginn;
}

/// Whether the period from `von` on would reach into the episode behind it.
bool reichtHinein(std::string_view von, std::string_view bis, const Zeitraum& dahinter)
{
    return vergleicheDatum(von, "<", dahinter.von) && (istOffenesEnde(bis) || vergleicheDatum(bis, ">=", dahinter.von));
}

} // namespace

bool istOffenesEnde(std::string_view bis)
{
    return bis == "offen"_t;
}

bool Zeitraum::istOffen() const
{
    return istOffenesEnde(bis);
}

Zeitraumliste leseZeitraumListe(std::int32_t kernID)
{
    Zeitraumliste liste;
    const auto& tabelle = zustand().pfade.betrDat;
    zustand().bestand.fürJedeZeile(Tabelle::Betr, [&](std::string_view zeile, std::size_t nummer) {
        if (leseSchlüssel(zeile, feld::betr::kernID, 16, tabelle, nummer) == kernID) {
            liste.push_back(
                {std::string(getFeld(zeile, feld::betr::beginn)), std::string(getFeld(zeile, feld::betr::ende))});
        }
    });
    sortiereNachBeginn(liste);
    return liste;
}

void sortiereNachBeginn(Zeitraumliste& liste)
{
    std::ranges::stable_sort(
        liste, [](std::string_view a, std::string_view b) { return vergleicheDatum(a, "<", b); }, &Zeitraum::von);
}

std::string findeFreienTag(const Zeitraumliste& liste, const Datum& heute)
{
    std::string kandidat = alsDatumstext(heute);
    bool verschoben = true;
    while (verschoben) {
        verschoben = false;
        for (const Zeitraum& zeitraum : liste) {
            if (liegtIn(zeitraum, kandidat)) {
                kandidat = tagDavor(zeitraum.von);
                verschoben = true;
            }
        }
    }
    return kandidat;
}

bool prüfeVon(const Nachbarn& nachbarn, std::string_view kandidat)
{
    return std::ranges::none_of(nachbarn.liste, [&](const Zeitraum& zeitraum) {
        return !istEigener(nachbarn, zeitraum) && liegtIn(zeitraum, kandidat);
    });
}

bool prüfeBis(const Nachbarn& nachbarn, std::string_view von, std::string_view kandidat)
{
    if (!istOffenesEnde(kandidat) && vergleicheDatum(von, ">", kandidat)) {
        return false;
    }
    return std::ranges::none_of(nachbarn.liste, [&](const Zeitraum& zeitraum) {
        return !istEigener(nachbarn, zeitraum) && reichtHinein(von, kandidat, zeitraum);
    });
}
