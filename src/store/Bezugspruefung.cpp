#include "store/Bezugspruefung.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

Fundort anZeile(Tabelle tabelle, std::size_t zeile, int feld = 0)
{
    return {.tabelle = tabelle, .datei = {}, .zeile = zeile, .feld = feld};
}

std::string alsNummer(const std::pair<std::int32_t, std::int32_t>& schlüssel)
{
    return verbinde(alsText(schlüssel.first), '-', alsText(schlüssel.second));
}

std::string siehe(std::string_view nummer, std::size_t zeile)
{
    return verbinde(nummer, ", siehe Zeile "_t, std::to_string(zeile));
}

} // namespace

void Bezugsprüfung::nimmKlienten(std::size_t zeile, std::int32_t kernID, std::string_view status)
{
    const bool istOderA = status == "o" || status == "a";
    const bool leer = status.empty() || status == std::string_view("\0", 1);
    if (!istOderA && !leer) {
        m_befunde.melde(Befundart::StatusUnbekannt, anZeile(Tabelle::Kern, zeile, feld::kern::betrao),
                        alsZitat(status));
    }
    // an unknown status is told already
    const char gelesen = istOderA ? status.front() : leer ? '\0' : '?';
    const auto [ort, neu] = m_klienten.try_emplace(kernID, Klient{zeile, gelesen});
    if (!neu) {
        m_befunde.melde(Befundart::SchlüsselDoppelt, anZeile(Tabelle::Kern, zeile),
                        siehe(alsText(kernID), ort->second.zeile));
    }
}

void Bezugsprüfung::nimmBetreuung(std::size_t zeile, std::int32_t kernID, std::int32_t betrID, const Zeitraum& zeitraum)
{
    const auto [ort, neu] = m_betreuungen.try_emplace({kernID, betrID}, Betreuung{zeile, zeitraum});
    if (!neu) {
        m_befunde.melde(Befundart::SchlüsselDoppelt, anZeile(Tabelle::Betr, zeile),
                        siehe(alsNummer(ort->first), ort->second.zeile));
    }
    if (zeitraum.von && zeitraum.bis && *zeitraum.von > *zeitraum.bis) {
        m_befunde.melde(Befundart::EndeVorBeginn, anZeile(Tabelle::Betr, zeile, feld::betr::ende));
    }
    m_betreute.insert(kernID);
}

void Bezugsprüfung::nimmDiagnose(std::size_t zeile, std::int32_t kernID, std::int32_t betrID)
{
    const auto [ort, neu] = m_diagnosen.try_emplace({kernID, betrID}, zeile);
    if (!neu) {
        m_befunde.melde(Befundart::SchlüsselDoppelt, anZeile(Tabelle::Diag, zeile),
                        siehe(alsNummer(ort->first), ort->second));
    }
}

std::pair<Bezugsprüfung::Betreuungen::const_iterator, Bezugsprüfung::Betreuungen::const_iterator>
Bezugsprüfung::betreuungenVon(std::int32_t kernID) const
{
    constexpr auto kleinste = std::numeric_limits<std::int32_t>::min();
    return {m_betreuungen.lower_bound({kernID, kleinste}), m_betreuungen.lower_bound({kernID + 1, kleinste})};
}

void Bezugsprüfung::prüfeKlienten(std::int32_t kernID, const Klient& klient)
{
    const auto [anfang, ende] = betreuungenVon(kernID);
    const bool offen = std::any_of(anfang, ende, [](const auto& b) { return b.second.zeitraum.offen; });
    const char richtig = offen ? 'o' : anfang == ende ? '\0' : 'a';
    if (klient.status != '?' && klient.status != richtig) {
        m_befunde.melde(Befundart::StatusVeraltet, anZeile(Tabelle::Kern, klient.zeile, feld::kern::betrao));
    }
}

void Bezugsprüfung::prüfeZeiträume(std::int32_t kernID)
{
    std::vector<std::pair<Schlüssel, Betreuung>> reihe;
    const auto [anfang, ende] = betreuungenVon(kernID);
    std::copy_if(anfang, ende, std::back_inserter(reihe), [](const auto& b) {
        const auto& zeitraum = b.second.zeitraum;
        return zeitraum.von && (zeitraum.offen || (zeitraum.bis && *zeitraum.von <= *zeitraum.bis));
    });
    std::ranges::stable_sort(reihe, {}, [](const auto& b) { return *b.second.zeitraum.von; });
    // the one before that reaches furthest
    const Betreuung* weiteste = nullptr;
    const Betreuung* offene = nullptr;
    for (const auto& [schlüssel, betreuung] : reihe) {
        if (betreuung.zeitraum.offen && offene != nullptr) {
            m_befunde.melde(Befundart::MehrereOffen, anZeile(Tabelle::Betr, betreuung.zeile, feld::betr::ende),
                            siehe(alsNummer(schlüssel), offene->zeile));
        }
        if (weiteste != nullptr && (weiteste->zeitraum.offen || *weiteste->zeitraum.bis >= *betreuung.zeitraum.von)) {
            m_befunde.melde(Befundart::Überschneidung, anZeile(Tabelle::Betr, betreuung.zeile),
                            siehe(alsNummer(schlüssel), weiteste->zeile));
        }
        offene = betreuung.zeitraum.offen ? &betreuung : offene;
        if (weiteste == nullptr || (!weiteste->zeitraum.offen &&
                                    (betreuung.zeitraum.offen || *betreuung.zeitraum.bis > *weiteste->zeitraum.bis))) {
            weiteste = &betreuung;
        }
    }
}

void Bezugsprüfung::schließeAb()
{
    for (const auto& [kernID, klient] : m_klienten) {
        prüfeKlienten(kernID, klient);
    }
    for (const auto& [schlüssel, betreuung] : m_betreuungen) {
        if (!m_klienten.contains(schlüssel.first)) {
            m_befunde.melde(Befundart::BetreuungOhneKlient, anZeile(Tabelle::Betr, betreuung.zeile),
                            alsNummer(schlüssel));
        }
        if (!m_diagnosen.contains(schlüssel)) {
            m_befunde.melde(Befundart::BetreuungOhneDiagnose, anZeile(Tabelle::Betr, betreuung.zeile),
                            alsNummer(schlüssel));
        }
    }
    for (const auto& [schlüssel, zeile] : m_diagnosen) {
        if (!m_betreuungen.contains(schlüssel)) {
            m_befunde.melde(Befundart::DiagnoseOhneBetreuung, anZeile(Tabelle::Diag, zeile), alsNummer(schlüssel));
        }
    }
    for (const auto kernID : m_betreute) {
        prüfeZeiträume(kernID);
    }
}
