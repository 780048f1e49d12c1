// bilder [--schirm=BREITExHÖHE] [--schärfe=S] [--schrift=F] [--schriftart=NAME] [--thema=hell|dunkel] [--name=N]
//        [--ordner=ORDNER] WEG ...
// Walks the scenarios in the real widgets on a screen of that size (in its own pixels; S of them are one logical
// pixel), with the system's font F times as large and a client whose name has N letters. Measures each stop, and saves
// its picture where a folder is given. Exit status 1 for any finding.

#include "Bildpruefung.h"
#include "Rundgang.h"
#include "oberflaeche/OberflaecheQt.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QMainWindow>
#include <QPainter>
#include <QWidget>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int breiteMitPlatz = 1900; ///< logical pixels from which on the tables have room
constexpr double schärfeFürFarben = 2;

struct Auftrag {
    Schirm schirm{.schrift = 1};
    int namenslänge = 40;
    std::string ordner;
    std::vector<std::string> wege;
};

/// The value behind "--wort=", nullptr when the argument is another one.
const char* wertVon(const char* argument, const std::string& wort)
{
    const std::string anfang = "--" + wort + '=';
    return std::string(argument).starts_with(anfang) ? argument + anfang.size() : nullptr;
}

Auftrag lies(int anzahl, char** werte)
{
    Auftrag auftrag;
    for (int i = 1; i < anzahl; ++i) {
        if (const auto* größe = wertVon(werte[i], "schirm")) {
            if (std::sscanf(größe, "%dx%d", &auftrag.schirm.breite, &auftrag.schirm.höhe) != 2) {
                throw std::runtime_error("--schirm=BREITExHÖHE");
            }
        } else if (const auto* schärfe = wertVon(werte[i], "schärfe")) {
            auftrag.schirm.schärfe = std::stod(schärfe);
        } else if (const auto* schrift = wertVon(werte[i], "schrift")) {
            auftrag.schirm.schrift = std::stod(schrift);
        } else if (const auto* schriftart = wertVon(werte[i], "schriftart")) {
            auftrag.schirm.schriftart = schriftart;
        } else if (const auto* thema = wertVon(werte[i], "thema")) {
            auftrag.schirm.istDunkel = std::string(thema) == "dunkel";
        } else if (const auto* länge = wertVon(werte[i], "name")) {
            auftrag.namenslänge = std::stoi(länge);
        } else if (const auto* ordner = wertVon(werte[i], "ordner")) {
            auftrag.ordner = ordner;
        } else {
            auftrag.wege.emplace_back(werte[i]);
        }
    }
    return auftrag;
}

/// The screen with the windows on it.
QPixmap fotografiere()
{
    QPixmap bild;
    for (auto* fenster : QApplication::topLevelWidgets()) {
        if (fenster->isVisible() && qobject_cast<QMainWindow*>(fenster) != nullptr) {
            bild = fenster->grab();
        }
    }
    for (auto* fenster : QApplication::topLevelWidgets()) {
        if (fenster->isVisible() && fenster->windowType() == Qt::Dialog) {
            const auto foto = fenster->grab();
            QPainter maler(&bild);
            const QSize rest = (bild.size() - foto.size()) / 2 / bild.devicePixelRatio();
            maler.drawPixmap(QPoint(rest.width(), rest.height()), foto);
        }
    }
    return bild;
}

/// Counts who is asked to lay itself out again.
class Ordnungszähler : public QObject {
public:
    Ordnungszähler() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override
    {
        if (ereignis->type() == QEvent::LayoutRequest) {
            m_klassen << QString::fromLatin1(objekt->metaObject()->className());
        }
        return false;
    }
    /// Those of this round of the event loop alone.
    QStringList inDieserRunde()
    {
        m_klassen.clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        m_klassen.removeDuplicates();
        return m_klassen;
    }

private:
    QStringList m_klassen;
};

/// A screen on which nothing happens comes to rest: one that is laid out again and again takes a whole processor.
QStringList prüfeRuhe()
{
    constexpr int runden = 20; // far more than sizes need to settle
    Ordnungszähler zähler;
    for (int i = 0; i < runden; ++i) {
        if (zähler.inDieserRunde().isEmpty()) {
            return {};
        }
    }
    return {QStringLiteral("kommt nicht zur Ruhe: %1").arg(zähler.inDieserRunde().join(QStringLiteral(", ")))};
}

int messe(const Auftrag& auftrag)
{
    const auto oberfläche = erzeugeOberflächeQt(auftrag.schirm);
    const Bildmaß maß{.hatPlatz = auftrag.schirm.breite >= breiteMitPlatz * auftrag.schirm.schärfe,
                      .misstFarben = auftrag.schirm.schärfe >= schärfeFürFarben};
    int befunde = 0;
    int halte = 0;
    for (const auto& weg : auftrag.wege) {
        const auto fehlschlag = Rundgang(weg, auftrag.namenslänge).gehe(*oberfläche, [&](const std::string& name) {
            QApplication::processEvents();
            ++halte;
            for (const auto& befund : prüfeRuhe() + prüfeFenster(maß)) {
                ++befunde;
                std::printf("%s: %s\n", name.c_str(), qPrintable(befund));
            }
            if (!auftrag.ordner.empty()) {
                fotografiere().save(QString::fromStdString(auftrag.ordner + '/' + name + ".png"));
            }
        });
        if (!fehlschlag.empty()) {
            ++befunde;
            std::printf("%s\n", fehlschlag.c_str());
        }
    }
    std::printf("%d stops, %d findings\n", halte, befunde);
    return befunde == 0 && halte > 0 ? 0 : 1;
}

} // namespace

int main(int anzahl, char** werte)
{
    try {
        const auto auftrag = lies(anzahl, werte);
        if (!auftrag.ordner.empty()) {
            QDir().mkpath(QString::fromStdString(auftrag.ordner));
        }
        return messe(auftrag);
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return 2;
    }
}
