#include "clients/frmInfo.h"

#include "platform/dateien/Dateien.h"
#include "zustand/Zustand.h"

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
                               "Die Daten liegen in "_t,
                               pfadtext(zustand().pfade.programm)));
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
