#include "store/Bestand.h"

#include "platform/dateien/Zeilen.h"
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
    const auto text = inhalt(tabelle);
    Zeilen zeilen(text->text());
    while (const auto zeile = zeilen.nächste()) {
        prüfeSatzlänge(*zeile, pfade().von(tabelle), zeilen.nummer());
        if (!besuch(*zeile, zeilen.nummer())) {
            return;
        }
    }
}
