#include "export/Diagnosezeile.h"

#include "export/Spaltentabelle.h"
#include "platform/text/Text.h"
#include "satz/Diagnosefelder.h"

#include <algorithm>

namespace {

/// What an empty number gives: 0 for an age, 99 for days of consumption; behind the substances the 99 has a
/// blank in front, which the receiving side knows.
std::string_view ersatzFürLeereZahl(int nummer)
{
    using namespace feld::diag;
    if (platzVon(nummer) == AlterStörung) {
        return "0"_t;
    }
    return istGruppe(gruppeVon(nummer), Gruppenart::Substanz) ? "99"_t : " 99"_t;
}

Exportspalte diagnosespalteAus(const Satzfeld& feld, int nummer)
{
    Exportspalte spalte{.satz = &Exportsätze::diagnose, .feld = nummer, .werte = feld.werte};
    const bool istEssstörung = feld.hatListe(werte::essstörung);
    switch (feld.art) {
    case Feldart::option:
        spalte.kodierung =
            istEssstörung || feld.hatListe(werte::icdZusatz) ? &Zeilenbauer::ziffern : &Zeilenbauer::tabelle;
        spalte.leer = istEssstörung ? "9"_t : "0"_t; // there 0 is anorexia
        break;
    case Feldart::zahl:
        spalte.kodierung = &Zeilenbauer::ersatzFürLeer;
        spalte.leer = ersatzFürLeereZahl(nummer);
        break;
    case Feldart::icdPsy:
    case Feldart::icdNeu:
        spalte.kodierung = &Zeilenbauer::mitBuchstabe;
        spalte.ersatz = diagnoseartVon(nummer - feld::diag::weitere(0)).buchstabe;
        break;
    case Feldart::icd0000:
        spalte.kodierung = &Zeilenbauer::hauptdiagnose;
        break;
    case Feldart::hdAlter:
        spalte.kodierung = &Zeilenbauer::alterHauptdiagnose;
        break;
    default: // as stored
        break;
    }
    return spalte;
}

Exportspalte diagnosespalteAusBetreuung(const Satzfeld& feld, int nummer)
{
    Exportspalte spalte{.kodierung = &Zeilenbauer::tabelle, .feld = nummer, .werte = feld.werte};
    if (feld.art == Feldart::hdOhne || feld.art == Feldart::ivKonsum) {
        spalte.kodierung = &Zeilenbauer::flaggenplatz;
        spalte.anzahl = static_cast<int>(std::ranges::count(betreuungsfelder(), feld.art, &Satzfeld::art));
    } else if (!feld.hatListe(werte::lang)) {
        spalte.leer = "0"_t; // infections admit an empty text; addiction to several substances does not
    }
    return spalte;
}

std::vector<Exportspalte> baueDiagnosespalten()
{
    std::vector<Exportspalte> spalten;
    trageFelderEin(spalten, 'D', diagnosefelder(), diagnosespalteAus);
    trageFelderEin(spalten, 'D', betreuungsfelder(), diagnosespalteAusBetreuung);
    trageAnfangEin(spalten, {.satz = &Exportsätze::diagnose, .feld = feld::diag::kernID},
                   {.satz = &Exportsätze::diagnose, .feld = feld::diag::betrID});
    return spalten;
}

} // namespace

const std::vector<Exportspalte>& diagnosespalten()
{
    static const auto spalten = baueDiagnosespalten();
    return spalten;
}

std::string erstelleDiagZeile(const Exportsätze& sätze)
{
    return Zeilenbauer(sätze).baue(diagnosespalten());
}
