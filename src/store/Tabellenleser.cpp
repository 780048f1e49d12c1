#include "store/Tabellenleser.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Tabellen.h"
#include "zustand/Zustand.h"

#include <limits>

namespace fs = std::filesystem;

std::unique_ptr<Dateiinhalt> öffneTabelle(const fs::path& tabelle)
{
    auto& dateien = zustand().umgebung.dateien();
    const auto& arbeitsdatei = zustand().pfade.dummyDatei;
    if (!dateien.istDatei(tabelle) && dateien.istDatei(arbeitsdatei)) {
        throw Laufzeitfehler(verbinde("Die Tabelle \""_t, pfadtext(tabelle),
                                      "\" fehlt. Wahrscheinlich liegt ihr Inhalt in der Arbeitsdatei \""_t,
                                      pfadtext(arbeitsdatei), "\""_t));
    }
    return dateien.lies(tabelle);
}

std::string ortsangabe(const fs::path& tabelle, std::size_t nummer)
{
    return verbinde("\""_t, pfadtext(tabelle), "\", Zeile "_t, std::to_string(nummer));
}

void prüfeSatzlänge(std::string_view satz, std::string_view ort)
{
    constexpr std::size_t höchstens = std::numeric_limits<std::int16_t>::max();
    if (satz.size() > höchstens) {
        throw Laufzeitfehler(verbinde(ort, ": Überlauf, die Zeile ist "_t, std::to_string(satz.size()),
                                      " Zeichen lang, erlaubt sind "_t, std::to_string(höchstens)));
    }
}

Tabellenleser::Tabellenleser(const fs::path& tabelle)
    : m_tabelle(tabelle), m_inhalt(öffneTabelle(tabelle)), m_zeilen(m_inhalt->text())
{}

std::optional<std::string_view> Tabellenleser::nächste()
{
    const auto zeile = m_zeilen.nächste();
    m_zeile = zeile.value_or(std::string_view());
    if (m_zeile.size() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        prüfeSatzlänge(m_zeile, ortsangabe(m_tabelle, nummer()));
    }
    return zeile;
}

std::int32_t Tabellenleser::schlüssel(int feld, int bits) const
{
    return leseSchlüssel(m_zeile, feld, bits, m_tabelle, nummer());
}
