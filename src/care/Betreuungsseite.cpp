#include "care/Betreuungsseite.h"

#include "platform/text/Text.h"
#include "satz/moHelferlein.h"

Betreuungsseite::Betreuungsseite(std::string_view name, std::string_view überschrift, std::string Arbeitskopie::*stück)
    : Bildschirm(name), m_stück(stück)
{
    lblHeader.setzeText(überschrift);
    kopfband.titel = &lblHeader;
    kopfband.name = &lblName;
    kopfband.werte = {{std::string("Betreuungszeitraum von:"_t), &lblBetrBeg}, {std::string("bis:"_t), &lblBetrEnd}};
    leiste.links = {&cmdMemo};
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;

    cmdMemo.beiKlick = [this] { zustand().zeigeMemo(*this, false); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void Betreuungsseite::beiÖffnung()
{
    setzeTitel(zustand().titel);
    const Arbeitskopie& kopie = zustand().arbeitskopie;
    lblName.setzeText(klientenname(kopie.aktKernDS));
    lblBetrBeg.setzeText(kopie.betrBeg);
    lblBetrEnd.setzeText(kopie.betrEnd);
    tafel.fülleListen();
    tafel.lade(kopie.*m_stück);
    nachLaden();
}

std::string Betreuungsseite::sammleSeitenDaten()
{
    vorSammeln();
    return tafel.sammle();
}

void Betreuungsseite::beiOK()
{
    if (tafel.prüfeZahlen()) {
        zustand().arbeitskopie.*m_stück = sammleSeitenDaten();
        zustand().folge.schließe(*this);
    }
}

void Betreuungsseite::beiExit()
{
    if (sammleSeitenDaten() != zustand().arbeitskopie.*m_stück) {
        const Antwort antwort = zeigeMeldung("Sollen alle Veränderungen, die nach Aufruf dieses Fensters "
                                             "vorgenommen wurden, verworfen werden ?"_t,
                                             Symbol::Frage, Knöpfe::OKAbbrechen);
        if (antwort != Antwort::OK) {
            return;
        }
    }
    zustand().folge.schließe(*this);
}
