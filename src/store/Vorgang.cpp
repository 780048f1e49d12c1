#include "store/Vorgang.h"

#include "platform/text/Text.h"
#include "store/Niederschrift.h"

#include <utility>
#include <vector>

Fassung& Vorgang::fassung(Tabelle tabelle)
{
    auto ort = m_änderungen.find(tabelle);
    if (ort == m_änderungen.end()) {
        auto inhalt = m_bestand.inhalt(tabelle);
        const auto länge = inhalt->text().size();
        ort = m_änderungen.try_emplace(tabelle, tabelle, pfade().von(tabelle), std::move(inhalt), länge).first;
    }
    return ort->second.fassung;
}

void Vorgang::anfüge(Tabelle tabelle, std::string_view satz)
{
    prüfeSatzlänge(satz, pfade().von(tabelle));
    fassung(tabelle).anfüge(satz);
}

bool Vorgang::ersetze(Tabelle tabelle, const Satzschlüssel& schlüssel, std::string_view satz)
{
    prüfeSatzlänge(satz, pfade().von(tabelle));
    const bool ersetzt = fassung(tabelle).ersetze(schlüssel, satz);
    if (!ersetzt) {
        melde(verbinde("Achtung: ersetze"_t, satznameIn(tabelle), " hat nicht ersetzt"_t), Symbol::Stop);
    }
    return ersetzt;
}

void Vorgang::lösche(Tabelle tabelle, const Satzschlüssel& schlüssel)
{
    if (!fassung(tabelle).lösche(schlüssel)) {
        melde(verbinde("Achtung: lösche"_t, satznameIn(tabelle), " hat DS "_t, schlüssel.text(),
                       " nicht gefunden und nicht ersetzt"_t),
              Symbol::Keins);
    }
}

void Vorgang::anfügeKernDS(std::string_view satz)
{
    anfüge(Tabelle::Kern, satz);
}

void Vorgang::anfügeBetrDS(std::string_view satz)
{
    anfüge(Tabelle::Betr, satz);
}

void Vorgang::anfügeDiagDS(std::string_view satz)
{
    anfüge(Tabelle::Diag, satz);
}

bool Vorgang::ersetzeKernDS(std::int32_t kernID, std::string_view satz)
{
    return ersetze(Tabelle::Kern, {kernID}, satz);
}

bool Vorgang::ersetzeBetrDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz)
{
    return ersetze(Tabelle::Betr, {kernID, betrID}, satz);
}

bool Vorgang::ersetzeDiagDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz)
{
    return ersetze(Tabelle::Diag, {kernID, betrID}, satz);
}

void Vorgang::löscheKernDS(std::int32_t kernID)
{
    lösche(Tabelle::Kern, {kernID});
}

void Vorgang::löscheBetrDS(std::int32_t kernID, std::int32_t betrID)
{
    lösche(Tabelle::Betr, {kernID, betrID});
}

void Vorgang::löscheDiagDS(std::int32_t kernID, std::int32_t betrID)
{
    lösche(Tabelle::Diag, {kernID, betrID});
}

void Vorgang::löscheAllesVon(std::int32_t kernID)
{
    fassung(Tabelle::Betr).löscheKlienten(kernID);
    fassung(Tabelle::Diag).löscheKlienten(kernID);
}

void Vorgang::löscheDiagReste(std::int32_t kernID, std::int32_t betrID)
{
    fassung(Tabelle::Diag).lösche({kernID, betrID});
}

void Vorgang::setzeInhalt(Tabelle tabelle, std::string inhalt)
{
    setzeInhalt(tabelle, std::make_unique<Dateiinhalt>(std::move(inhalt)));
}

void Vorgang::setzeInhalt(Tabelle tabelle, std::unique_ptr<Dateiinhalt> inhalt)
{
    auto& dateien = m_bestand.dateien();
    const auto& pfad = pfade().von(tabelle);
    const auto alteLänge = dateien.fehlt(pfad) ? std::nullopt : std::optional(dateien.länge(pfad));
    m_änderungen.erase(tabelle);
    m_änderungen.try_emplace(tabelle, tabelle, pfad, std::move(inhalt), alteLänge);
}

void Vorgang::laufe(Tabelle tabelle, const Zeilenbesuch& besuch) const
{
    const auto ort = m_änderungen.find(tabelle);
    if (ort == m_änderungen.end()) {
        m_bestand.laufe(tabelle, besuch);
    } else {
        ort->second.fassung.laufe(besuch);
    }
}

void Vorgang::bestätige()
{
    std::vector<Schreibauftrag> aufträge;
    for (const auto& [tabelle, änderung] : m_änderungen) {
        aufträge.push_back({tabelle, änderung.alteLänge,
                            [&fassung = änderung.fassung](Schreiber& schreiber) { fassung.schreibe(schreiber); }});
    }
    schreibeNieder(m_bestand.dateien(), pfade(), m_bestand.meldung(), aufträge);
    m_änderungen.clear();
}
