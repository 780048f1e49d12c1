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
#include "platform/umgebung/Laufzeitfehler.h"
#include "platform/umgebung/Prozess.h"
#include "store/Pruefung.h"

#include <QApplication>
#include <QMessageBox>

#include <optional>
#include <sstream>

namespace {

constexpr int unverständlich = 2;

int prüfe(const Aufruf& aufruf)
{
    Dateien dateien;
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
    switch (aufruf.art) {
    case Aufrufart::Version:
        sageDemAufrufer(versionstext());
        return 0;
    case Aufrufart::Hilfe:
        sageDemAufrufer(hilfetext());
        return 0;
    case Aufrufart::Prüfung:
        return prüfe(aufruf);
    case Aufrufart::Unverständlich:
        meldeDemAufrufer(verbinde("tolvek7: ", aufruf.fehler, '\n', hilfetext()));
        return unverständlich;
    case Aufrufart::Arbeiten:
    case Aufrufart::Muster:
        break;
    }
    return std::nullopt;
}

/// A folder that was named and is not there may be a slip, behind which the records would seem to be gone.
bool darfAngelegtWerden(const Aufruf& aufruf, const std::filesystem::path& ordner)
{
    if (!aufruf.ordner) {
        return true;
    }
    const auto frage = verbinde("Den Ordner \""_t, pfadtext(ordner),
                                "\" gibt es nicht. Soll er für eine neue, leere Einrichtung angelegt werden?"_t);
    const auto fenster = baueMeldungsfenster({frage, Symbol::Frage, Knöpfe::JaNein, Antwort::Nein, "Tolvek7"});
    fenster->exec();
    return antwortVon(*fenster) == Antwort::Ja;
}

int arbeite(const Aufruf& aufruf)
{
    Dateien dateien;
    Arbeitsort ort(aufruf, frageSystem(), dateien);
    const auto& ordner = ort.laufort().programmordner;
    if (!dateien.istOrdner(ordner)) {
        if (!darfAngelegtWerden(aufruf, ordner)) {
            return 0;
        }
        dateien.legeOrdnerAn(ordner);
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
