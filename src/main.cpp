#include "app/Arbeitsort.h"
#include "app/Befehlszeile.h"
#include "app/moMain.h"
#include "platform/calc/Rechenprogramm.h"
#include "platform/dateien/Dateien.h"
#include "platform/qt/QtOberflaeche.h"
#include "platform/qt/QtUmgebung.h"
#include "platform/qt/Stil.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Aufrufer.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "platform/umgebung/Prozessschutz.h"
#include "store/Pruefung.h"

#include <QApplication>
#include <QMessageBox>

#include <optional>
#include <sstream>

namespace {

constexpr int unverständlich = 2;

int prüfe(const Aufruf& aufruf)
{
    Dateien dateien(erzeugeDateizugriff());
    try {
        const auto ordner = findeDatenordner(aufruf, frageSystem(), dateien);
        std::ostringstream bericht;
        const int ergebnis = pruefe(ordner, bericht);
        sageDemAufrufer(bericht.str());
        return ergebnis;
    } catch (const Laufzeitfehler& fehler) {
        meldeDemAufrufer("tolvek7: " + alsUtf8(fehler.text()) + '\n');
    }
    return unverständlich;
}

/// What needs no window, so that it works without a display too; the exit status.
std::optional<int> beantworteOhneFenster(const Aufruf& aufruf)
{
    std::ostringstream text;
    switch (aufruf.art) {
    case Aufrufart::Version:
        schreibeVersion(text);
        sageDemAufrufer(text.str());
        return 0;
    case Aufrufart::Hilfe:
        schreibeHilfe(text);
        sageDemAufrufer(text.str());
        return 0;
    case Aufrufart::Prüfung:
        return prüfe(aufruf);
    case Aufrufart::Unverständlich:
        text << "tolvek7: " << aufruf.fehler << '\n';
        schreibeHilfe(text);
        meldeDemAufrufer(text.str());
        return unverständlich;
    case Aufrufart::Arbeiten:
    case Aufrufart::Muster:
        break;
    }
    return std::nullopt;
}

/// A folder that was named and is not there may be a slip, behind which the records would seem to be gone.
bool darfAngelegtWerden(const Aufruf& aufruf, const Laufort& ort)
{
    if (!aufruf.ordner) {
        return true;
    }
    const auto frage = verbinde("Den Ordner \""_t, pfadtext(ort.programmordner),
                                "\" gibt es nicht. Soll er für eine neue, leere Einrichtung angelegt werden?"_t);
    const auto fenster = baueMeldungsfenster({frage, Symbol::Frage, Knöpfe::JaNein, Antwort::Nein, "Tolvek7"});
    fenster->exec();
    return antwortVon(*fenster) == Antwort::Ja;
}

int arbeite(const Aufruf& aufruf)
{
    Dateien dateien(erzeugeDateizugriff());
    Arbeitsort ort(aufruf, frageSystem(), dateien);
    if (ort.fehlt()) {
        if (!darfAngelegtWerden(aufruf, ort.laufort())) {
            return 0;
        }
        ort.legeAn();
    }
    Rechenprogramm rechenprogramm;
    QtUmgebung umgebung(rechenprogramm, ort.laufort());
    Programm programm(umgebung);
    auto& zustand = programm.zustand();
    QtOberfläche oberfläche(zustand.ablauf, zustand.folge, zustand.rahmen, umgebung);
    programm.starte();
    return zustand.ablauf.läuft() ? QApplication::exec() : zustand.ablauf.status();
}

} // namespace

int main(int anzahl, char** werte)
{
    verhindereSpeicherabbilder();
    const Aufruf aufruf = leseAufruf(argumente(anzahl, werte));
    if (const auto status = beantworteOhneFenster(aufruf)) {
        return *status;
    }
    QApplication anwendung(anzahl, werte);
    richteStilEin(anwendung);
    try {
        return arbeite(aufruf);
    } catch (const Laufzeitfehler& fehler) { // of what comes before the run; the run has a place of its own
        baueMeldungsfenster(
            {verbinde("Laufzeitfehler: "_t, fehler.text()), Symbol::Stop, Knöpfe::OK, Antwort::OK, "Tolvek7"})
            ->exec();
        return 1;
    }
}
