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

/// Counts how often anything in the windows is laid out anew.
class Ordnungszähler : public QObject {
public:
    Ordnungszähler() { qApp->installEventFilter(this); }

    int anzahl = 0;

    bool eventFilter(QObject* /*objekt*/, QEvent* ereignis) override
    {
        anzahl += ereignis->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }
};

/// A page that lays itself out anew because it has been laid out keeps the processor busy as long as it is open.
bool kommtZurRuhe()
{
    constexpr int runden = 20; // widths, then heights, from the tables in the cards up to the window
    for (int i = 0; i < runden; ++i) {
        Ordnungszähler zähler;
        QApplication::processEvents();
        if (zähler.anzahl == 0) {
            return true;
        }
    }
    return false;
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
            ++halte;
            if (!kommtZurRuhe()) {
                ++befunde;
                std::printf("%s: ordnet sich ohne Ende\n", name.c_str());
            }
            for (const auto& befund : prüfeFenster(maß)) {
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
