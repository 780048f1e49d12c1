#include "store/Sicherungen.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Vorgang.h"

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// The contents of three files; none for one that is not there.
using Dreierinhalt = std::array<std::unique_ptr<Dateiinhalt>, 3>;
/// Their texts; empty for one that is not there.
using Dreiertext = std::array<std::string_view, 3>;

Dreierinhalt inhaltDerBak(const Bestand& bestand)
{
    Dreierinhalt inhalt;
    for (std::size_t i = 0; i < dieSicherungen.size(); ++i) {
        if (!bestand.dateien().fehlt(bestand.pfade().von(dieSicherungen[i]))) {
            inhalt[i] = bestand.inhalt(dieSicherungen[i]);
        }
    }
    return inhalt;
}

Dreiertext texteVon(const Dreierinhalt& inhalt)
{
    Dreiertext texte;
    std::ranges::transform(inhalt, texte.begin(),
                           [](const auto& einer) { return einer ? einer->text() : std::string_view(); });
    return texte;
}

/// The time of the backup: that of its newest file.
std::string zeitDerBak(const Bestand& bestand)
{
    std::string zeit;
    for (const auto bak : dieSicherungen) {
        const auto& pfad = bestand.pfade().von(bak);
        if (!bestand.dateien().fehlt(pfad)) {
            zeit = std::max(zeit, bestand.dateien().zeitVon(pfad));
        }
    }
    return zeit;
}

bool liegtSchonDa(const Bestand& bestand, const fs::path& ordner, const Dreiertext& texte)
{
    auto& dateien = bestand.dateien();
    for (std::size_t i = 0; i < dieSicherungen.size(); ++i) {
        const auto kopie = ordner / bestand.pfade().von(dieSicherungen[i]).filename();
        if (!dateien.istDatei(kopie) || dateien.lies(kopie)->text() != texte[i]) {
            return false;
        }
    }
    return true;
}

/// A name for the set that no other set has.
fs::path freierOrdner(const Bestand& bestand, const Dreiertext& texte)
{
    const auto zeit = zeitDerBak(bestand);
    auto ordner = bestand.pfade().sicherungen / zeit;
    for (int nummer = 2; bestand.dateien().istOrdner(ordner) && !liegtSchonDa(bestand, ordner, texte); ++nummer) {
        ordner = bestand.pfade().sicherungen / verbinde(zeit, " ("_t, std::to_string(nummer), ')');
    }
    return ordner;
}

/// Sets the .bak files aside when they hold records other than `neue`. The set comes under its name when it is whole.
void stelleBakBeiseite(const Bestand& bestand, const Dreiertext& neue)
{
    auto& dateien = bestand.dateien();
    const auto alte = inhaltDerBak(bestand);
    const auto texte = texteVon(alte);
    if (texte == neue || texte == Dreiertext()) {
        return;
    }
    const auto ordner = freierOrdner(bestand, texte);
    if (dateien.istOrdner(ordner)) {
        return; // a start that was broken off has done it
    }
    const auto entwurf = legeSicherungsordnerAn(bestand, fassungNeben(ordner.filename()));
    for (const auto bak : dieSicherungen) {
        const auto& pfad = bestand.pfade().von(bak);
        if (dateien.istDatei(pfad)) {
            dateien.verdopple(dateien.ziel(pfad), entwurf / pfad.filename());
        }
    }
    dateien.sichereOrdner(entwurf);
    dateien.benenneUm(entwurf, ordner);
    dateien.sichereOrdner(bestand.pfade().sicherungen);
}

std::vector<fs::path> ordnernamen(const Bestand& bestand)
{
    const auto& sicherungen = bestand.pfade().sicherungen;
    return bestand.dateien().istOrdner(sicherungen) ? bestand.dateien().ordnerIn(sicherungen) : std::vector<fs::path>{};
}

/// Names of the sets, the oldest first.
std::vector<fs::path> sätzeIn(const Bestand& bestand)
{
    constexpr std::size_t längeDerZeit = 19;
    auto sätze = ordnernamen(bestand);
    std::erase_if(sätze, [längeDerZeit](const fs::path& name) {
        const auto text = pfadtext(name);
        const bool istZeit = text.size() >= längeDerZeit &&
                             text.find_first_not_of("0123456789-. ") >= std::min(text.size(), längeDerZeit);
        return !istZeit || istFassungNeben(name) || text.ends_with("unvollendet"_t) || text.ends_with("halbe Zeile"_t);
    });
    return sätze;
}

/// Keeps the newest sets. What can't be removed today goes another day.
void kürzeSicherungen(const Bestand& bestand)
{
    auto& dateien = bestand.dateien();
    const auto& sicherungen = bestand.pfade().sicherungen;
    try {
        const auto sätze = sätzeIn(bestand);
        for (std::size_t i = 0; i + aufgehobeneSätze < sätze.size(); ++i) {
            const auto weg = fassungNeben(sicherungen / sätze[i]); // a set under this name is not whole
            dateien.benenneUm(sicherungen / sätze[i], weg);
            dateien.entferneOrdner(weg);
        }
    } catch (const Laufzeitfehler&) {
        // an old set too many does no harm
    }
}

} // namespace

fs::path legeSicherungsordnerAn(const Bestand& bestand, const fs::path& name)
{
    const auto& sicherungen = bestand.pfade().sicherungen;
    bestand.dateien().sorgeFürOrdner(sicherungen);
    bestand.dateien().sorgeFürOrdner(sicherungen / name);
    return sicherungen / name;
}

void entferneAngefangeneSicherungen(const Bestand& bestand)
{
    for (const auto& name : ordnernamen(bestand)) {
        if (istFassungNeben(name)) {
            bestand.dateien().entferneOrdner(bestand.pfade().sicherungen / name);
        }
    }
}

void sichereDateien(const Bestand& bestand)
{
    Vorgang vorgang(bestand);
    Dreierinhalt neue;
    for (std::size_t i = 0; i < dieTabellen.size(); ++i) {
        neue[i] = bestand.inhalt(dieTabellen[i]);
        const auto& bak = bestand.pfade().von(dieSicherungen[i]);
        // a folder without the file of an earlier backup has been tampered with; going on could overwrite what
        // somebody has moved aside
        if (!bestand.dateien().istDatei(bak)) {
            throw Laufzeitfehler(verbinde("Die Sicherungsdatei \""_t, pfadtext(bak), "\" fehlt"_t));
        }
    }
    stelleBakBeiseite(bestand, texteVon(neue));
    for (std::size_t i = 0; i < dieTabellen.size(); ++i) {
        vorgang.setzeInhalt(dieSicherungen[i], std::move(neue[i]));
    }
    vorgang.bestätige();
    kürzeSicherungen(bestand);
}

void verwerfeSitzung(const Bestand& bestand)
{
    Vorgang vorgang(bestand);
    for (std::size_t i = 0; i < dieTabellen.size(); ++i) {
        vorgang.setzeInhalt(dieTabellen[i], bestand.inhalt(dieSicherungen[i]));
    }
    vorgang.bestätige();
}

void legeTabellenAn(const Bestand& bestand)
{
    bestand.dateien().sorgeFürOrdner(bestand.pfade().daten);
    stelleBakBeiseite(bestand, {});
    Vorgang vorgang(bestand);
    for (const auto tabelle : alleSechs) {
        vorgang.setzeInhalt(tabelle, std::string());
    }
    vorgang.bestätige();
}

std::string ortDerSicherung(const Bestand& bestand)
{
    try {
        const auto& pfade = bestand.pfade();
        if (!bestand.dateien().istDatei(pfade.kernBak)) {
            return {};
        }
        const auto sätze = sätzeIn(bestand);
        const auto ältere = sätze.empty()
                                ? std::string()
                                : verbinde(", ältere in \""_t, pfadtext(pfade.sicherungen / sätze.back()), '"');
        return verbinde("\""_t, pfadtext(pfade.daten), "\" (Dateien *.bak vom "_t, zeitDerBak(bestand), ')', ältere);
    } catch (const Laufzeitfehler&) {
        return {}; // the failure that is being told counts
    }
}
