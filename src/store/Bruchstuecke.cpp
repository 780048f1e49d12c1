#include "store/Bruchstuecke.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "store/Sicherungen.h"
#include "store/Vorgang.h"

#include <algorithm>

namespace {

/// Told by the last byte, so that a start need not read whole tables for this. Whoever reads the table tells that it
/// is missing.
bool endetMitZeile(Dateien& dateien, const std::filesystem::path& pfad)
{
    const auto länge = dateien.fehlt(pfad) ? 0 : dateien.länge(pfad);
    const auto letztes = länge == 0 ? nullptr : dateien.lies(pfad, länge - 1);
    return letztes == nullptr || letztes->text() == "\n" || letztes->text() == "\r";
}

void stelleBeiseite(const Bestand& bestand, Tabelle tabelle)
{
    const auto inhalt = bestand.inhalt(tabelle);
    const auto text = inhalt->text();
    const auto rest = bruchstückIn(text);
    if (rest.empty()) {
        return;
    }
    auto& dateien = bestand.dateien();
    const auto& pfad = bestand.pfade().von(tabelle);
    const auto ordner = legeSicherungsordnerAn(bestand, verbinde(dateien.zeitVon(pfad), " halbe Zeile"_t));
    dateien.verdopple(dateien.ziel(pfad), ordner / pfad.filename());
    dateien.sichereOrdner(ordner);
    Vorgang vorgang(bestand);
    vorgang.setzeInhalt(tabelle, std::string(text.substr(0, text.size() - rest.size())));
    vorgang.bestätige();
    bestand.meldung()(
        verbinde(ortsangabe(pfad, zähleZeilen(text)), ": Die letzte Zeile war nur halb geschrieben (\""_t, rest,
                 "\") und gehört zu niemandem. Sie wurde herausgenommen. Die Tabelle, wie sie war, liegt in \""_t,
                 pfadtext(ordner), "\"."_t),
        Symbol::Warnung);
}

} // namespace

std::string_view bruchstückIn(std::string_view inhalt)
{
    constexpr int schlüsselfelder = 2;
    const auto ende = inhalt.find_last_of("\r\n");
    const auto rest = inhalt.substr(ende == std::string_view::npos ? 0 : ende + 1);
    return std::ranges::count(rest, trenner) < schlüsselfelder ? rest : std::string_view();
}

void stelleBruchstückeBeiseite(const Bestand& bestand)
{
    for (const auto tabelle : dieTabellen) {
        if (!endetMitZeile(bestand.dateien(), bestand.pfade().von(tabelle))) {
            stelleBeiseite(bestand, tabelle);
        }
    }
}
