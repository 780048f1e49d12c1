#include "clients/frmInfo.h"

#include "platform/dateien/Dateien.h"
#include "zustand/Zustand.h"

namespace {

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

} // namespace

frmInfo::frmInfo() : Bildschirm("frmInfo"_t)
{
    using namespace anordnung;
    benenne("lblHeader"_t, lblHeader);
    benenne("picInfo"_t, picInfo);
    benenne("lblText"_t, lblText);
    benenne("cmdOK"_t, cmdOK);
    kopfband.titel = &lblHeader;
    aufbau = karte({}, zeile({element(picInfo, 6), füllend(element(lblText))}));
    leiste.rechts = {&cmdOK};
    istKindfenster = true;
    beiEscape = &cmdOK;

    setzeTitel(verbinde(zustand().titel, " - Info"_t));
    lblText.setzeText(verbinde(zustand().titel, "\r\n"_t,
                               "Dokumentation für Einrichtungen der Suchthilfe\r\n"
                               "nach dem Deutschen Kerndatensatz (KDS)\r\n"
                               "Nachfolger von Tolvek, dessen Daten er übernehmen kann\r\n"
                               "Die Daten liegen in\r\n"_t,
                               umbrochen(pfadtext(zustand().pfade.programm))));
    cmdOK.beiKlick = [this] { zustand().folge.entlade(*this); };
}

void frmInfo::beiAktivierung()
{
    zustand().wechsel->holeFensterlage(*this);
}

void frmInfo::beiEntladen()
{
    zustand().wechsel->speichereFensterlage(*this);
}
