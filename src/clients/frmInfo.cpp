#include "clients/frmInfo.h"

#include "platform/dateien/Dateien.h"
#include "zustand/Zustand.h"

#include <array>

namespace {

struct Tastenzeile {
    std::string_view taste;
    std::string_view wirkung;
};

/// The handbook has the whole table.
constexpr std::array<Tastenzeile, 9> tasten{{
    {"F1"_t, "öffnet das Handbuch bei diesem Bildschirm"_t},
    {"Tab, Umschalt+Tab"_t, "nächstes Feld, voriges Feld"_t},
    {"Leertaste"_t, "drückt die Schaltfläche, markiert die Option"_t},
    {"Pfeil links, rechts"_t, "ändern ein Antwortfeld (k.A., ja, nein)"_t},
    {"Pfeil auf, ab"_t, "wechseln die Zeile, wählen in Listen"_t},
    {"Alt + Buchstabe"_t, "drückt die Schaltfläche mit diesem unterstrichenen Buchstaben"_t},
    {"F4, Alt+Pfeil ab"_t, "öffnet eine Auswahl, beim Datum den Kalender"_t},
    {"Eingabe"_t, "drückt die Schaltfläche, sonst OK in den Fenstern Zeitraum und Problembereiche"_t},
    {"Esc"_t, "Exit; ein getipptes Datum nimmt es erst zurück"_t},
}};

std::string tastenliste()
{
    std::string text;
    for (const Tastenzeile& zeile : tasten) {
        text += verbinde(text.empty() ? "" : "\r\n", zeile.taste, ": "_t, zeile.wirkung);
    }
    return text;
}

/// Breaks the path behind its separators, so that a long one does not decide the width of the window.
std::string umbrochen(std::string_view pfad)
{
    constexpr std::size_t zeilenlänge = 60;
    std::string ergebnis;
    while (pfad.size() > zeilenlänge) {
        const auto trennung = pfad.find_last_of("/\\", zeilenlänge - 1);
        const auto länge = trennung == std::string_view::npos || trennung == 0 ? zeilenlänge : trennung + 1;
        ergebnis.append(pfad.substr(0, länge)).append("\r\n");
        pfad.remove_prefix(länge);
    }
    return ergebnis.append(pfad);
}

std::string ordnertext()
{
    const auto& pfade = zustand().pfade;
    const auto alleBak = pfade.daten / std::filesystem::path("*").concat(pfade.kernBak.extension().native());
    return verbinde("Ordner der Daten: "_t, umbrochen(pfadtext(pfade.daten)), "\r\nStand beim Start dieser Sitzung: "_t,
                    umbrochen(pfadtext(alleBak)), "\r\nFrühere Stände: "_t, umbrochen(pfadtext(pfade.sicherungen)));
}

} // namespace

frmInfo::frmInfo() : Bildschirm("frmInfo"_t)
{
    using namespace anordnung;
    kopfband.titel = &lblHeader;
    aufbau = spalte({karte({}, zeile({element(picInfo, 6), füllend(element(lblText))})),
                     karte("Daten und Sicherungen"_t, element(lblOrdner)), karte("Tasten"_t, element(lblTasten))});
    leiste.rechts = {&cmdOK};
    istKindfenster = true;
    breiteEm = 40;
    beiEscape = &cmdOK;

    setzeTitel(verbinde(zustand().titel, " - Info"_t));
    lblText.setzeText(verbinde(zustand().titel, "\r\n"_t,
                               "Dokumentation für Einrichtungen der Suchthilfe\r\n"
                               "nach dem Deutschen Kerndatensatz (KDS)\r\n"
                               "Nachfolger von Tolvek, dessen Daten er übernehmen kann\r\n"
                               "Freie Software unter der MIT-Lizenz"_t));
    lblOrdner.setzeText(ordnertext());
    lblTasten.setzeText(tastenliste());
    cmdOK.beiKlick = [this] { zustand().folge.entlade(*this); };
}
