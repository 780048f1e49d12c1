#include "export/Kernzeile.h"

#include "export/Spaltentabelle.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Exportspalten.h"
#include "satz/Klientenfelder.h"

namespace {

Exportspalte betreuungsspalteAus(const Satzfeld& feld, int nummer)
{
    static const auto kinderOhneAngabe = alsText(werte::kinderOhneAngabe);
    const bool istKurz = feld.hatListe(werte::kurz);
    Exportspalte spalte{.feld = nummer, .werte = feld.werte};
    if (istKurz || (nummer >= feld::betr::sprache && nummer <= feld::betr::migrant + 1)) {
        spalte.meldung = "Fehler"_t; // the box of these lacks the word "hier"
    }
    switch (feld.art) {
    case Feldart::option:
        spalte.kodierung = istKurz ? &Zeilenbauer::kurzJaNein : &Zeilenbauer::tabelle;
        break;
    case Feldart::kinder:
        spalte.ersatz = kinderOhneAngabe;
        [[fallthrough]];
    case Feldart::zuvor:
    case Feldart::kontakte:
        spalte.kodierung = &Zeilenbauer::ersatzFürKA;
        break;
    case Feldart::nation:
        spalte.kodierung = &Zeilenbauer::nation;
        break;
    default: // as stored
        break;
    }
    return spalte;
}

Exportspalte klientenspalteAus(const Satzfeld& feld, int nummer)
{
    const auto kodierung = nummer == feld::kern::geburtsdatum ? &Zeilenbauer::alter
                           : feld.werte.empty()               ? &Zeilenbauer::gespeichert
                                                              : &Zeilenbauer::tabelle;
    return {.kodierung = kodierung, .satz = &Exportsätze::klient, .feld = nummer, .werte = feld.werte};
}

std::vector<Exportspalte> baueKernspalten()
{
    std::vector<Exportspalte> spalten;
    trageFelderEin(spalten, 'K', betreuungsfelder(), betreuungsspalteAus);
    trageFelderEin(spalten, 'K', klientenfelder(), klientenspalteAus);
    trageAnfangEin(spalten, {.feld = feld::betr::kernID}, {.feld = feld::betr::betrID});
    spaltenplatz(spalten, exportspalte::kern::dauer) = {.kodierung = &Zeilenbauer::dauer};
    return spalten;
}

} // namespace

const std::vector<Exportspalte>& kernspalten()
{
    static const auto spalten = baueKernspalten();
    return spalten;
}

std::string erstelleKernZeile(const Exportsätze& sätze)
{
    return Zeilenbauer(sätze).baue(kernspalten());
}
