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

Exportspalte optionAus(const Satzfeld& feld, int nummer)
{
    const auto mit = [&](Kodierung kodierung, std::string_view leer) {
        return Exportspalte{
            .kodierung = kodierung, .satz = Satzart::Diagnose, .feld = nummer, .werte = feld.werte, .leer = leer};
    };
    if (feld.werte.data() == werte::icdZusatz.data()) {
        return mit(Kodierung::Zusatzziffern, "0"_t);
    }
    if (feld.werte.data() == werte::essstörung.data()) {
        return mit(Kodierung::Essstörung, "9"_t); // 0 is anorexia
    }
    return mit(Kodierung::Tabelle, "0"_t);
}

Exportspalte diagnosespalteAus(const Satzfeld& feld, int nummer)
{
    Exportspalte spalte{.satz = Satzart::Diagnose, .feld = nummer};
    switch (feld.art) {
    case Feldart::option:
        return optionAus(feld, nummer);
    case Feldart::zahl:
        spalte.kodierung = Kodierung::ErsatzFürLeer;
        spalte.leer = ersatzFürLeereZahl(nummer);
        return spalte;
    case Feldart::icdPsy:
    case Feldart::icdNeu:
        spalte.kodierung = Kodierung::MitBuchstabe;
        spalte.ersatz = diagnoseartVon(nummer - feld::diag::weitere(0)).buchstabe;
        return spalte;
    case Feldart::icd0000:
        spalte.kodierung = Kodierung::Hauptdiagnose;
        return spalte;
    case Feldart::hdAlter:
        spalte.kodierung = Kodierung::AlterHauptdiagnose;
        return spalte;
    default: // as stored
        return spalte;
    }
}

Exportspalte diagnosespalteAusBetreuung(const Satzfeld& feld, int nummer)
{
    Exportspalte spalte{.kodierung = Kodierung::Tabelle, .feld = nummer, .werte = feld.werte};
    if (feld.art == Feldart::hdOhne || feld.art == Feldart::ivKonsum) {
        spalte.kodierung = Kodierung::Flaggenplatz;
        spalte.anzahl = static_cast<int>(std::ranges::count(betreuungsfelder(), feld.art, &Satzfeld::art));
    } else if (feld.werte.data() != werte::lang.data()) {
        spalte.leer = "0"_t; // infections admit an empty text; addiction to several substances does not
    }
    return spalte;
}

std::vector<Exportspalte> baueDiagnosespalten()
{
    std::vector<Exportspalte> spalten;
    trageFelderEin(spalten, 'D', diagnosefelder(), diagnosespalteAus);
    trageFelderEin(spalten, 'D', betreuungsfelder(), diagnosespalteAusBetreuung);
    trageAnfangEin(spalten, {.satz = Satzart::Diagnose, .feld = feld::diag::kernID},
                   {.satz = Satzart::Diagnose, .feld = feld::diag::betrID});
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
    std::string zeile;
    Zeilenbauer(zeile, sätze).baue(diagnosespalten());
    return zeile;
}
