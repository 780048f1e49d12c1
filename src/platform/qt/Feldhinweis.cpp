#include "platform/qt/Feldhinweis.h"

#include "platform/qt/Stil.h"

#include <QAccessible>
#include <QLabel>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int vierSekunden = 4000;

/// A tool tip is a window of its own that takes the next press to itself, and the button that was meant never
/// hears of it; this label lies in the window of the field and lets every press through.
QLabel* macheHinweis(const QString& text, QWidget* fenster)
{
    auto* hinweis = new QLabel(fenster);
    hinweis->setObjectName(QLatin1String(feldhinweis)); // first: a screen reader asks at once what it is
    hinweis->setText(text);
    hinweis->setAttribute(Qt::WA_TransparentForMouseEvents);
    hinweis->setWordWrap(true);
    hinweis->setAccessibleName(text);
    hinweis->ensurePolished();
    return hinweis;
}

void legeAn(const QWidget& feld, QLabel& hinweis)
{
    const QWidget& fenster = *hinweis.parentWidget();
    const int breiteste = std::min(em(34), fenster.width());
    const int ganz = hinweis.fontMetrics().horizontalAdvance(hinweis.text()) + em(1.2);
    const int breite = std::min(ganz, breiteste);
    hinweis.resize(breite, hinweis.heightForWidth(breite));
    const QPoint unten = feld.mapTo(&fenster, QPoint(0, feld.height()));
    const QPoint oben = feld.mapTo(&fenster, QPoint(0, -hinweis.height()));
    const int y = unten.y() + hinweis.height() <= fenster.height() ? unten.y() : std::max(0, oben.y());
    hinweis.move(std::max(0, std::min(unten.x(), fenster.width() - hinweis.width())), y);
}

} // namespace

void zeigeFeldhinweis(QWidget& feld, const QString& text)
{
    delete feld.window()->findChild<QLabel*>(QLatin1String(feldhinweis), Qt::FindDirectChildrenOnly);
    auto* hinweis = macheHinweis(text, feld.window());
    legeAn(feld, *hinweis);
    hinweis->show();
    hinweis->raise();
    QAccessibleEvent gemeldet(hinweis, QAccessible::Alert);
    QAccessible::updateAccessibility(&gemeldet);
    QTimer::singleShot(vierSekunden, hinweis, &QObject::deleteLater);
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
