#include "platform/qt/Eingabefilter.h"

#include "platform/qt/Umschrift.h"
#include "platform/text/Eingabe.h"

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int vierSekunden = 4000;

/// A tool tip is a window of its own that takes the next press to itself, and the button that was meant never
/// hears of it; this label lies in the window of the field and lets every press through.
void zeigeAmFeld(const QWidget& feld, const QString& text)
{
    QWidget& fenster = *feld.window();
    delete fenster.findChild<QLabel*>(filterhinweis, Qt::FindDirectChildrenOnly);
    auto* hinweis = new QLabel(text, &fenster);
    hinweis->setObjectName(filterhinweis);
    hinweis->setAttribute(Qt::WA_TransparentForMouseEvents);
    hinweis->adjustSize();
    const QPoint unten = feld.mapTo(&fenster, QPoint(0, feld.height()));
    hinweis->move(std::max(0, std::min(unten.x(), fenster.width() - hinweis->width())),
                  std::max(0, std::min(unten.y(), fenster.height() - hinweis->height())));
    hinweis->show();
    hinweis->raise();
    QTimer::singleShot(vierSekunden, hinweis, &QObject::deleteLater);
}

} // namespace

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
    const auto text =
        eingabe.verweigert
            ? QStringLiteral("Dieses Zeichen kann nicht gespeichert werden und wurde nicht übernommen.")
            : QStringLiteral(
                  "Dieses Zeichen kann nicht gespeichert werden und wurde durch den nächsten Buchstaben ersetzt.");
    zeigeAmFeld(feld, text);
}
