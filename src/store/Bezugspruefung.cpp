#include "store/Bezugspruefung.h"

#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"

#include <algorithm>
#include <iterator>
#include <vector>

using namespace befundart;

namespace {

std::string siehe(const Satzschlüssel& schlüssel, std::size_t zeile)
{
    return verbinde(schlüssel.text(), ", siehe Zeile "_t, std::to_string(zeile));
}

} // namespace

void Bezugsprüfung::meldeDoppelte(Tabelle tabelle, std::size_t zeile, const Satzschlüssel& schlüssel, std::size_t erste)
{
    m_befunde.melde(SchlüsselDoppelt, {tabelle, zeile}, siehe(schlüssel, erste));
}

void Bezugsprüfung::nimmKlienten(std::size_t zeile, std::int32_t kernID, std::string_view status)
{
    const bool istOderA = status == "o" || status == "a";
    const bool leer = status.empty() || status == std::string_view("\0", 1);
    if (!istOderA && !leer) {
        m_befunde.melde(StatusUnbekannt, {Tabelle::Kern, zeile, feld::kern::betrao}, alsZitat(status));
    }
    auto& klient = m_klienten[kernID];
    if (klient.zeile != 0) {
        meldeDoppelte(Tabelle::Kern, zeile, {kernID}, klient.zeile);
        return;
    }
    klient.zeile = zeile;
    // an unknown status is told already
    klient.status = istOderA ? status.front() : leer ? '\0' : '?';
}

void Bezugsprüfung::nimmBetreuung(std::size_t zeile, std::int32_t kernID, std::int32_t betrID, const Zeitraum& zeitraum)
{
    const auto [ort, neu] = m_klienten[kernID].betreuungen.try_emplace(betrID, Betreuung{zeile, zeitraum});
    if (!neu) {
        meldeDoppelte(Tabelle::Betr, zeile, {kernID, betrID}, ort->second.zeile);
    }
    if (zeitraum.von && zeitraum.bis && *zeitraum.von > *zeitraum.bis) {
        m_befunde.melde(EndeVorBeginn, {Tabelle::Betr, zeile, feld::betr::ende});
    }
}

void Bezugsprüfung::nimmDiagnose(std::size_t zeile, std::int32_t kernID, std::int32_t betrID)
{
    const auto [ort, neu] = m_klienten[kernID].diagnosen.try_emplace(betrID, zeile);
    if (!neu) {
        meldeDoppelte(Tabelle::Diag, zeile, {kernID, betrID}, ort->second);
    }
}

void Bezugsprüfung::prüfeStatus(const Klient& klient)
{
    const auto& betreuungen = klient.betreuungen;
    const bool offen = std::ranges::any_of(betreuungen, [](const auto& b) { return b.second.zeitraum.offen; });
    const char richtig = offen ? 'o' : betreuungen.empty() ? '\0' : 'a';
    if (klient.zeile != 0 && klient.status != '?' && klient.status != richtig) {
        m_befunde.melde(StatusVeraltet, {Tabelle::Kern, klient.zeile, feld::kern::betrao});
    }
}

/// Each record with those that belong to it in the other tables.
void Bezugsprüfung::prüfePartner(std::int32_t kernID, const Klient& klient)
{
    for (const auto& [betrID, betreuung] : klient.betreuungen) {
        const auto nummer = Satzschlüssel{kernID, betrID}.text();
        if (klient.zeile == 0) {
            m_befunde.melde(BetreuungOhneKlient, {Tabelle::Betr, betreuung.zeile}, nummer);
        }
        if (!klient.diagnosen.contains(betrID)) {
            m_befunde.melde(BetreuungOhneDiagnose, {Tabelle::Betr, betreuung.zeile}, nummer);
        }
    }
    for (const auto& [betrID, zeile] : klient.diagnosen) {
        if (!klient.betreuungen.contains(betrID)) {
            m_befunde.melde(DiagnoseOhneBetreuung, {Tabelle::Diag, zeile}, Satzschlüssel{kernID, betrID}.text());
        }
    }
}

void Bezugsprüfung::prüfeZeiträume(std::int32_t kernID, const Klient& klient)
{
    std::vector<std::pair<std::int32_t, Betreuung>> reihe;
    std::ranges::copy_if(klient.betreuungen, std::back_inserter(reihe), [](const auto& b) {
        const auto& zeitraum = b.second.zeitraum;
        return zeitraum.von && (zeitraum.offen || (zeitraum.bis && *zeitraum.von <= *zeitraum.bis));
    });
    std::ranges::stable_sort(reihe, {}, [](const auto& b) { return *b.second.zeitraum.von; });
    // the one before that reaches furthest
    const Betreuung* weiteste = nullptr;
    const Betreuung* offene = nullptr;
    for (const auto& [betrID, betreuung] : reihe) {
        if (betreuung.zeitraum.offen && offene != nullptr) {
            m_befunde.melde(MehrereOffen, {Tabelle::Betr, betreuung.zeile, feld::betr::ende},
                            siehe({kernID, betrID}, offene->zeile));
        }
        if (weiteste != nullptr && (weiteste->zeitraum.offen || *weiteste->zeitraum.bis >= *betreuung.zeitraum.von)) {
            m_befunde.melde(Überschneidung, {Tabelle::Betr, betreuung.zeile}, siehe({kernID, betrID}, weiteste->zeile));
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
        prüfeStatus(klient);
        prüfePartner(kernID, klient);
        prüfeZeiträume(kernID, klient);
    }
}
