#include "store/Vorgang.h"

#include "platform/text/Text.h"
#include "store/Niederschrift.h"

#include <utility>

Fassung& Vorgang::fassung(Tabelle tabelle)
{
    auto ort = m_fassungen.find(tabelle);
    if (ort == m_fassungen.end()) {
        auto inhalt = m_bestand.inhalt(tabelle);
        const auto länge = inhalt->text().size();
        ort = m_fassungen.try_emplace(tabelle, tabelle, pfade().von(tabelle), std::move(inhalt), länge).first;
    }
    return ort->second;
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
        meldung()(verbinde("Achtung: ersetze"_t, satznameIn(tabelle), " hat nicht ersetzt"_t), Symbol::Stop);
    }
    return ersetzt;
}

void Vorgang::lösche(Tabelle tabelle, const Satzschlüssel& schlüssel)
{
    if (!fassung(tabelle).lösche(schlüssel)) {
        meldung()(verbinde("Achtung: lösche"_t, satznameIn(tabelle), " hat DS "_t, schlüssel.text(),
                           " nicht gefunden und nicht ersetzt"_t),
                  Symbol::Keins);
    }
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
    m_fassungen.erase(tabelle);
    m_fassungen.try_emplace(tabelle, tabelle, pfad, std::move(inhalt), alteLänge);
}

void Vorgang::laufe(Tabelle tabelle, const Zeilenbesuch& besuch) const
{
    const auto ort = m_fassungen.find(tabelle);
    if (ort == m_fassungen.end()) {
        m_bestand.laufe(tabelle, besuch);
    } else {
        ort->second.laufe(besuch);
    }
}

void Vorgang::bestätige()
{
    schreibeNieder(m_bestand, m_fassungen);
    m_fassungen.clear();
}
