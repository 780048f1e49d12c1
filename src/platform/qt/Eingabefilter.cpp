#include "platform/qt/Eingabefilter.h"

#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Umschrift.h"

#include <QWidget>

Feldänderung filtere(std::string_view bisher, const QString& jetzt, int marke, bool mehrzeilig, std::size_t höchstlänge)
{
    return nimmÄnderung(bisher, alsZeichen(jetzt), alsZeichen(jetzt.left(marke)).size(), mehrzeilig, höchstlänge);
}

void meldeFilter(QWidget& feld, const Eingabeergebnis& ergebnis, std::size_t höchstlänge)
{
    if (ergebnis.gekürzt) {
        zeigeFeldhinweis(
            feld, QStringLiteral("Hier haben %1 Zeichen Platz; was darüber hinausging, fehlt.").arg(höchstlänge));
    } else if (ergebnis.verweigert) {
        zeigeFeldhinweis(feld,
                         QStringLiteral("Dieses Zeichen kann nicht gespeichert werden und wurde nicht übernommen."));
    } else if (ergebnis.ersetzt) {
        zeigeFeldhinweis(
            feld, QStringLiteral(
                      "Dieses Zeichen kann nicht gespeichert werden und wurde durch den nächsten Buchstaben ersetzt."));
    }
}
