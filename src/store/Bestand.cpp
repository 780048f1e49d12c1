#include "store/Bestand.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

std::unique_ptr<Dateiinhalt> Bestand::inhalt(Tabelle tabelle) const
{
    const auto& pfad = pfade().von(tabelle);
    const auto& arbeitsdatei = pfade().dummyDatei;
    if (m_dateien.fehlt(pfad) && m_dateien.istDatei(arbeitsdatei)) {
        throw Laufzeitfehler(verbinde("Die Tabelle \""_t, pfadtext(pfad),
                                      "\" fehlt. Wahrscheinlich liegt ihr Inhalt in der Arbeitsdatei \""_t,
                                      pfadtext(arbeitsdatei), "\""_t));
    }
    return m_dateien.lies(pfad);
}

void Bestand::laufe(Tabelle tabelle, const Zeilenbesuch& besuch) const
{
    Tabellenleser leser(*this, tabelle);
    while (const auto zeile = leser.nächste()) {
        if (!besuch(*zeile, leser.nummer())) {
            return;
        }
    }
}

Tabellenleser::Tabellenleser(const Bestand& bestand, Tabelle tabelle)
    : m_pfad(bestand.pfade().von(tabelle)), m_inhalt(bestand.inhalt(tabelle)), m_zeilen(m_inhalt->text())
{}

std::optional<std::string_view> Tabellenleser::nächste()
{
    const auto zeile = m_zeilen.nächste();
    if (zeile) {
        prüfeSatzlänge(*zeile, m_pfad, nummer());
    }
    return zeile;
}
