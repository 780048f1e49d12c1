#include "platform/qt/Eingabefilter.h"

#include "platform/qt/Umschrift.h"
#include "platform/text/Eingabe.h"

#include <QToolTip>
#include <QWidget>

#include <algorithm>

Feldeingabe filtere(const QString& text, int schreibmarke, bool mehrzeilig, std::size_t höchstlänge)
{
    const auto ganz = nimmEingabe(alsZeichen(text), mehrzeilig, höchstlänge);
    const auto links = nimmEingabe(alsZeichen(text.left(schreibmarke)), mehrzeilig, höchstlänge);
    Feldeingabe ergebnis;
    ergebnis.text = ganz.text;
    ergebnis.schreibmarke = std::min(links.text.size(), ganz.text.size());
    ergebnis.ersetzt = ganz.ersetzt;
    ergebnis.verweigert = ganz.verweigert;
    ergebnis.istWieGetippt = (mehrzeilig ? alsMehrzeiler(ganz.text) : alsQString(ganz.text)) == text;
    return ergebnis;
}

void meldeFilter(QWidget& feld, const Feldeingabe& eingabe)
{
    if (!eingabe.ersetzt && !eingabe.verweigert) {
        return;
    }
    constexpr int vierSekunden = 4000;
    const auto text =
        eingabe.verweigert
            ? QStringLiteral("Dieses Zeichen kann nicht gespeichert werden und wurde nicht übernommen.")
            : QStringLiteral(
                  "Dieses Zeichen kann nicht gespeichert werden und wurde durch den nächsten Buchstaben ersetzt.");
    QToolTip::showText(feld.mapToGlobal(QPoint(0, feld.height())), text, &feld, {}, vierSekunden);
}
