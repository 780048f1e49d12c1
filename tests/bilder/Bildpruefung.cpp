#include "Bildpruefung.h"

#include "Schriftspur.h"
#include "oberflaeche/QtAuge.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QTreeView>

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <vector>

namespace {

constexpr double tintenspiel = 0.08; ///< em: smoothed edges of letters, and the hook of a j
constexpr double kontrastMindestens = 4.5;
constexpr int zeilenMindestens = 6;

/// The main menu does not scroll: both lists and their commands are in view on every screen.
bool stehtAufHauptmenü(const QWidget& widget)
{
    const auto* w = widget.parentWidget();
    while (w != nullptr && w->objectName() != QStringLiteral("frmHauptmenü")) {
        w = w->parentWidget();
    }
    return w != nullptr;
}

QString nameVon(const QWidget& widget)
{
    const QWidget* w = &widget;
    while (w->objectName().isEmpty() && w->parentWidget() != nullptr) {
        w = w->parentWidget();
    }
    return w->objectName() + (w == &widget ? QString() : QStringLiteral("/") + widget.metaObject()->className());
}

/// Whether a person can bring the child into view by scrolling up and down.
bool rollt(const QWidget& kind)
{
    const auto* fläche = dynamic_cast<const QScrollArea*>(kind.parentWidget()->parentWidget());
    return kind.objectName() == QStringLiteral("frameVorne") || (fläche != nullptr && fläche->widget() == &kind);
}

bool rolltQuer(const QWidget& kind)
{
    const auto* fläche = dynamic_cast<const QScrollArea*>(kind.parentWidget()->parentWidget());
    return fläche != nullptr && fläche->widget() == &kind && fläche->horizontalScrollBar()->maximum() > 0 &&
           fläche->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
}

/// The part of the widget that is in view or can be scrolled there.
QRect erreichbar(const QWidget& widget)
{
    QRect teil = widget.rect();
    QPoint versatz;
    bool senkrechtFrei = false;
    bool waagrechtFrei = false;
    for (const auto* w = &widget; !w->isWindow(); w = w->parentWidget()) {
        versatz += w->pos();
        QRect grenze = w->parentWidget()->rect().translated(-versatz);
        senkrechtFrei = senkrechtFrei || rollt(*w);
        waagrechtFrei = waagrechtFrei || rolltQuer(*w);
        if (senkrechtFrei) {
            grenze.setTop(teil.top());
            grenze.setBottom(teil.bottom());
        }
        if (waagrechtFrei) {
            grenze.setLeft(teil.left());
            grenze.setRight(teil.right());
        }
        teil &= grenze;
    }
    return teil;
}

/// What a person types into scrolls in itself.
bool istSchreibfeld(const QWidget& widget)
{
    const auto* eltern = widget.parentWidget();
    const bool zeile = dynamic_cast<const QLineEdit*>(&widget) != nullptr &&
                       dynamic_cast<const QComboBox*>(eltern) == nullptr &&
                       dynamic_cast<const QDateEdit*>(eltern) == nullptr;
    return zeile || dynamic_cast<const QPlainTextEdit*>(eltern) != nullptr;
}

/// The body of a list: its rows go on below the edge.
bool istListenkörper(const QWidget& widget)
{
    const auto* liste = dynamic_cast<const QTreeView*>(widget.parentWidget());
    return liste != nullptr && liste->viewport() == &widget;
}

/// It would go by itself a moment later, and until then take the clicks of the walk.
void räumeWerkzeugtippWeg()
{
    for (auto* fenster : QApplication::topLevelWidgets()) {
        if (fenster->windowType() == Qt::ToolTip) {
            fenster->hide();
        }
    }
}

QString werkzeugtipp(QWidget& widget, const QPoint& ort)
{
    QHelpEvent ereignis(QEvent::ToolTip, ort, widget.mapToGlobal(ort));
    QApplication::sendEvent(&widget, &ereignis);
    const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    räumeWerkzeugtippWeg();
    return text;
}

double leuchten(const QColor& farbe)
{
    const auto anteil = [](double wert) {
        return wert <= 0.04045 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) + 0.0722 * anteil(farbe.blueF());
}

double verhältnis(const QColor& eine, const QColor& andere)
{
    const double hell = std::max(leuchten(eine), leuchten(andere));
    const double dunkel = std::min(leuchten(eine), leuchten(andere));
    return (hell + 0.05) / (dunkel + 0.05);
}

int abstand(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

/// Contrast between the ground, the most frequent colour of the place, and the pixel that is nearest to the pen.
double gemessenerKontrast(const QImage& bild, const QRect& ort, const QColor& stift)
{
    std::unordered_map<QRgb, int> häufigkeit;
    QRgb tinte = 0;
    int nächster = 1000;
    QRgb punkt = 0;
    int* wieOft = nullptr; // most pixels are like the one before, and need no looking up
    for (int y = ort.top(); y <= ort.bottom(); ++y) {
        const auto* zeile = reinterpret_cast<const QRgb*>(bild.constScanLine(y));
        for (int x = ort.left(); x <= ort.right(); ++x) {
            if (wieOft == nullptr || zeile[x] != punkt) {
                punkt = zeile[x];
                wieOft = &häufigkeit[punkt];
                if (abstand(punkt, stift.rgb()) < nächster) {
                    nächster = abstand(punkt, stift.rgb());
                    tinte = punkt;
                }
            }
            ++*wieOft;
        }
    }
    const auto grund = std::max_element(häufigkeit.begin(), häufigkeit.end(),
                                        [](const auto& a, const auto& b) { return a.second < b.second; });
    return grund == häufigkeit.end() ? 0 : verhältnis(QColor(grund->first), QColor(tinte));
}

class Fensterblick {
public:
    Fensterblick(QWidget& fenster, const Bildmaß& maß) : m_fenster(fenster), m_maß(maß)
    {
        if (m_maß.misstFarben) {
            m_bild = fenster.grab().toImage().convertToFormat(QImage::Format_RGB32);
        }
    }

    QStringList befunde()
    {
        const QRect schirm = m_fenster.screen()->availableGeometry();
        if (!schirm.contains(m_fenster.frameGeometry())) {
            melde(m_fenster, QStringLiteral("reicht über den Schirm"));
        }
        // tool tips come and go below the window while it is looked at
        std::vector<QWidget*> eigene;
        for (auto* widget : m_fenster.findChildren<QWidget*>()) {
            if (widget->window() == &m_fenster && widget->isVisible() && qtauge::istZuSehen(*widget)) {
                eigene.push_back(widget);
            }
        }
        std::for_each(eigene.begin(), eigene.end(), [this](QWidget* widget) { prüfe(*widget); });
        return m_befunde;
    }

private:
    void melde(const QWidget& widget, const QString& was)
    {
        m_befunde.append(nameVon(widget) + QStringLiteral(": ") + was);
    }

    void prüfe(QWidget& widget)
    {
        prüfeSchrift(widget);
        const auto rolle = widget.parentWidget()->property("rolle").toString();
        const bool imRahmen = rolle == QStringLiteral("band") || rolle == QStringLiteral("leiste");
        const bool istBefehl = dynamic_cast<QAbstractButton*>(&widget) != nullptr && stehtAufHauptmenü(widget);
        if ((imRahmen || istBefehl) && widget.visibleRegion().boundingRect() != widget.rect()) {
            melde(widget, QStringLiteral("steht nicht ganz im Fenster"));
        }
        if (auto* liste = dynamic_cast<QTreeView*>(&widget)) {
            prüfeListe(*liste);
        }
        if (const auto* tabelle = dynamic_cast<const Tabelle*>(&widget);
            tabelle != nullptr && m_maß.hatPlatz && tabelle->verticalScrollBar()->maximum() > 0) {
            melde(widget, QStringLiteral("Tabelle rollt, obwohl Platz ist"));
        }
    }

    void prüfeListe(QTreeView& liste)
    {
        const int zeile = liste.model()->rowCount() == 0 ? 0 : liste.visualRect(liste.model()->index(0, 0)).height();
        if (zeile > 0 && liste.viewport()->visibleRegion().boundingRect().height() < zeilenMindestens * zeile) {
            melde(liste, QStringLiteral("zeigt keine %1 Zeilen").arg(zeilenMindestens));
        }
        if (liste.horizontalScrollBar()->maximum() > 0) {
            melde(liste,
                  QStringLiteral("um %1 Punkte sind Spalten außer Sicht").arg(liste.horizontalScrollBar()->maximum()));
        }
        const auto gewählt = liste.selectionModel()->selectedRows();
        if (!gewählt.isEmpty() &&
            !liste.viewport()->rect().contains(liste.visualRect(gewählt.first()) & QRect(0, -100000, 1, 200000))) {
            melde(liste, QStringLiteral("die gewählte Zeile ist nicht ganz zu sehen"));
        }
    }

    void prüfeSchrift(QWidget& widget)
    {
        const auto züge = schriftVon(widget);
        const auto* etikett = dynamic_cast<const QLabel*>(&widget);
        if (etikett != nullptr && !etikett->text().trimmed().isEmpty() && züge.empty()) {
            melde(widget, QStringLiteral("\"%1\" wird nicht gezeigt").arg(etikett->text()));
        }
        if (istSchreibfeld(widget)) {
            return;
        }
        QRectF platz = erreichbar(widget);
        if (istListenkörper(widget)) {
            platz.setBottom(platz.bottom() + 10000);
        }
        const double spiel = std::max(1.0, tintenspiel * QFontMetrics(QApplication::font()).height());
        platz.adjust(-spiel, -spiel, spiel, spiel);
        for (const auto& zug : züge) {
            QRectF erlaubt = zug.erlaubt.isEmpty() ? platz : platz & zug.erlaubt.adjusted(-spiel, -spiel, spiel, spiel);
            if (istListenkörper(widget)) {
                erlaubt.setTop(zug.tinte.top());
                erlaubt.setBottom(zug.tinte.bottom());
            }
            if (!erlaubt.contains(zug.tinte)) {
                melde(widget, QStringLiteral("\"%1\" ist abgeschnitten, von %2 bis %3 statt %4 bis %5")
                                  .arg(zug.text)
                                  .arg(zug.tinte.left())
                                  .arg(zug.tinte.right())
                                  .arg(erlaubt.left())
                                  .arg(erlaubt.right()));
            }
            prüfeKürzung(widget, zug);
            prüfeFarbe(widget, zug);
        }
    }

    void prüfeKürzung(QWidget& widget, const Schriftzug& zug)
    {
        if (!zug.text.endsWith(QChar(0x2026))) {
            return;
        }
        const QString tipp = werkzeugtipp(widget, zug.tinte.center().toPoint()).simplified();
        const QString anfang = zug.text.chopped(1).simplified();
        if (!tipp.contains(anfang) || tipp.size() <= anfang.size()) {
            melde(widget, QStringLiteral("\"%1\" sagt das Ganze nicht, sondern \"%2\"").arg(zug.text, tipp));
        }
    }

    void prüfeFarbe(const QWidget& widget, const Schriftzug& zug)
    {
        constexpr int umkreis = 3;
        const QRect tinte = (zug.erlaubt.isEmpty() ? zug.tinte : zug.tinte & zug.erlaubt).toAlignedRect();
        if (!m_maß.misstFarben || !widget.visibleRegion().contains(tinte) ||
            widget.visibleRegion().intersected(tinte).boundingRect() != tinte) {
            return;
        }
        const QRect ort = tinte.adjusted(-umkreis, -umkreis, umkreis, umkreis) & widget.rect();
        const double schärfe = m_bild.devicePixelRatio();
        const QRect punkte(widget.mapTo(&m_fenster, ort.topLeft()) * schärfe, ort.size() * schärfe);
        const double gemessen = gemessenerKontrast(m_bild, punkte & m_bild.rect(), zug.farbe);
        if (gemessen < kontrastMindestens) {
            melde(widget, QStringLiteral("\"%1\" hat nur %2:1").arg(zug.text).arg(gemessen, 0, 'f', 2));
        }
    }

    QWidget& m_fenster;
    Bildmaß m_maß;
    QImage m_bild;
    QStringList m_befunde;
};

} // namespace

QStringList prüfeFenster(const Bildmaß& maß)
{
    QStringList befunde;
    for (auto* fenster : QApplication::topLevelWidgets()) {
        const bool zählt = dynamic_cast<QMainWindow*>(fenster) != nullptr || fenster->windowType() == Qt::Dialog;
        if (fenster->isVisible() && zählt) {
            befunde += Fensterblick(*fenster, maß).befunde();
        }
    }
    befunde.removeDuplicates();
    return befunde;
}
