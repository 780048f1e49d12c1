#include "app/Arbeitsort.h"

#include "app/muster/Musterdaten.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

namespace fs = std::filesystem;

namespace {

constexpr auto mustervorsilbe = "tolvek7-muster-";
/// Enough to look around in, few enough to find one's way.
constexpr Mustervorgabe mustervorgabe{.klienten = 60, .episodenJe = 3, .saat = 7};

/// What an installation into the system brings, seen from the program's folder.
fs::path systemablage(const fs::path& programm)
{
    return programm.parent_path() / "share" / "tolvek7";
}

fs::path findeInstallation(const fs::path& programm, Dateien& dateien)
{
    for (const auto& ordner : {programm / "anweisungen", systemablage(programm)}) {
        if (dateien.istOrdner(ordner)) {
            return ordner;
        }
    }
    return programm;
}

/// Also an administrator, who may write everywhere, gets no records among the system's programs.
bool gehörtZumSystem(const fs::path& programm, Dateien& dateien)
{
    return dateien.istOrdner(systemablage(programm));
}

fs::path ordnerDerPerson(const Systemorte& orte)
{
    if (orte.person.empty()) {
        throw Laufzeitfehler(std::string("Es ist kein persönlicher Ordner bekannt, in dem die Daten liegen könnten"_t));
    }
    return orte.person / ordnername;
}

} // namespace

fs::path findeDatenordner(const Aufruf& aufruf, const Systemorte& orte, Dateien& dateien)
{
    if (aufruf.ordner) {
        return orte.arbeitsordner / *aufruf.ordner;
    }
    if (orte.programm.empty()) { // a system without /proc
        return ordnerDerPerson(orte);
    }
    const bool hatDaten = dateien.istOrdner(orte.programm / "Daten");
    if (hatDaten || (orte.programmBeschreibbar && !gehörtZumSystem(orte.programm, dateien))) {
        return orte.programm;
    }
    return ordnerDerPerson(orte);
}

Arbeitsort::Arbeitsort(const Aufruf& aufruf, const Systemorte& orte, Dateien& dateien)
{
    Wegwerfordner::räumeAuf(mustervorsilbe);
    m_laufort.installation = findeInstallation(orte.programm, dateien);
    m_laufort.istMuster = aufruf.art == Aufrufart::Muster;
    if (m_laufort.istMuster) {
        m_wegwerfordner.emplace(mustervorsilbe);
        m_laufort.programmordner = m_wegwerfordner->pfad() / ordnername;
        schreibeProgrammordner(m_laufort.programmordner, erzeugeMusterdaten(mustervorgabe));
    } else {
        m_laufort.programmordner = findeDatenordner(aufruf, orte, dateien);
    }
}
