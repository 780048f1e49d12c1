// vorfuehrung ORDNER hell|dunkel SZENARIO ...
// Plays scenarios in the real windows and saves what can be seen at each comment line "# bild NAME" as
// ORDNER/NAME-hell.png or ORDNER/NAME-dunkel.png.

#include "ablauf/Ausfuehrung.h"
#include "oberflaeche/OberflaecheQt.h"
#include "platform/qt/Stil.h"
#include "sprache/Szenariodatei.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QPainter>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

struct Bildwunsch {
    std::size_t zeile = 0;
    QString name;
};

std::vector<Bildwunsch> liesBildwünsche(const QString& szenario)
{
    std::vector<Bildwunsch> wünsche;
    QFile datei(szenario);
    if (datei.open(QIODevice::ReadOnly)) {
        QTextStream text(&datei);
        for (std::size_t zeile = 1; !text.atEnd(); ++zeile) {
            const auto inhalt = text.readLine().trimmed();
            if (inhalt.startsWith(QStringLiteral("# bild "))) {
                wünsche.push_back({zeile, inhalt.mid(7).trimmed()});
            }
        }
    }
    return wünsche;
}

/// The frame with the windows over it, as they would stand on a desktop.
QPixmap fotografiere()
{
    QPixmap bild;
    std::vector<QWidget*> darüber;
    for (auto* fenster : QApplication::topLevelWidgets()) {
        if (!fenster->isVisible()) {
            continue;
        }
        if (auto* rahmen = qobject_cast<QMainWindow*>(fenster)) {
            bild = rahmen->grab();
        } else {
            darüber.push_back(fenster);
        }
    }
    for (auto* fenster : darüber) {
        const auto foto = fenster->grab();
        if (bild.isNull()) {
            bild = foto;
            continue;
        }
        QPainter maler(&bild);
        const QPoint ort((bild.width() - foto.width()) / 2, (bild.height() - foto.height()) / 2);
        maler.drawPixmap(ort, foto);
    }
    return bild;
}

class Fotograf {
public:
    Fotograf(const QString& ordner, const QString& thema, std::vector<Bildwunsch> wünsche)
        : m_ordner(ordner), m_thema(thema), m_wünsche(std::move(wünsche))
    {}

    void vorZeile(std::size_t zeile)
    {
        for (; m_nächster < m_wünsche.size() && m_wünsche[m_nächster].zeile < zeile; ++m_nächster) {
            QApplication::processEvents();
            const auto name = QStringLiteral("%1/%2-%3.png").arg(m_ordner, m_wünsche[m_nächster].name, m_thema);
            if (!fotografiere().save(name)) {
                std::fprintf(stderr, "not saved: %s\n", qPrintable(name));
                m_gelungen = false;
            }
        }
    }

    bool gelungen() const { return m_gelungen && m_nächster == m_wünsche.size(); }

private:
    QString m_ordner;
    QString m_thema;
    std::vector<Bildwunsch> m_wünsche;
    std::size_t m_nächster = 0;
    bool m_gelungen = true;
};

bool führeVor(const QString& ordner, const QString& thema, const char* datei, Oberfläche& oberfläche)
{
    Fotograf fotograf(ordner, thema, liesBildwünsche(QString::fromLocal8Bit(datei)));
    const auto szenario = liesSzenario(datei);
    const auto fehlschlag = führeAus(szenario, oberfläche, [&](std::size_t zeile) { fotograf.vorZeile(zeile); });
    if (fehlschlag) {
        std::fprintf(stderr, "%s:%zu: %s\n", datei, fehlschlag->zeile, fehlschlag->text.c_str());
    }
    return !fehlschlag && fotograf.gelungen();
}

} // namespace

int main(int anzahl, char** werte)
{
    if (anzahl < 4) {
        std::fputs("vorfuehrung ORDNER hell|dunkel SZENARIO ...\n", stderr);
        return 2;
    }
    const auto ordner = QString::fromLocal8Bit(werte[1]);
    const auto thema = QString::fromLocal8Bit(werte[2]);
    const auto oberfläche = erzeugeOberflächeQt();
    richteStilEin(*qApp, thema == QStringLiteral("dunkel") ? Thema::Dunkel : Thema::Hell);
    QDir().mkpath(ordner);
    bool gelungen = true;
    for (int i = 3; i < anzahl; ++i) {
        gelungen = führeVor(ordner, thema, werte[i], *oberfläche) && gelungen;
    }
    return gelungen ? 0 : 1;
}
