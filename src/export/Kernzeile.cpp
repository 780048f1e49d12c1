#include "export/Kernzeile.h"

#include "export/Spaltentabelle.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Exportspalten.h"
#include "satz/Klientenfelder.h"

namespace {

/// The box of these columns lacks the word "hier": the short yes/no, language and migration.
std::string_view meldungZu(const Satzfeld& feld, int nummer)
{
    const bool istSpracheOderMigration = nummer >= feld::betr::sprache && nummer <= feld::betr::migrant + 1;
    return istSpracheOderMigration || feld.werte.data() == werte::kurz.data() ? "Fehler"_t : Exportspalte{}.meldung;
}

Exportspalte betreuungsspalteAus(const Satzfeld& feld, int nummer)
{
    static const auto kinderOhneAngabe = alsText(werte::kinderOhneAngabe);
    const auto mit = [&](Kodierung kodierung, std::string_view ersatz = {}) {
        return Exportspalte{.kodierung = kodierung,
                            .feld = nummer,
                            .werte = feld.werte,
                            .ersatz = ersatz,
                            .meldung = meldungZu(feld, nummer)};
    };
    switch (feld.art) {
    case Feldart::option:
        return mit(feld.werte.data() == werte::kurz.data() ? Kodierung::KurzJaNein : Kodierung::Tabelle);
    case Feldart::zuvor:
    case Feldart::kontakte:
        return mit(Kodierung::ErsatzFürKA);
    case Feldart::kinder:
        return mit(Kodierung::ErsatzFürKA, kinderOhneAngabe);
    case Feldart::nation:
        return mit(Kodierung::Nation);
    default:
        return mit(Kodierung::Gespeichert);
    }
}

Exportspalte klientenspalteAus(const Satzfeld& feld, int nummer)
{
    const auto kodierung = nummer == feld::kern::geburtsdatum ? Kodierung::Alter
                           : feld.werte.empty()               ? Kodierung::Gespeichert
                                                              : Kodierung::Tabelle;
    return {.kodierung = kodierung, .satz = Satzart::Klient, .feld = nummer, .werte = feld.werte};
}

std::vector<Exportspalte> baueKernspalten()
{
    std::vector<Exportspalte> spalten;
    trageFelderEin(spalten, 'K', betreuungsfelder(), betreuungsspalteAus);
    trageFelderEin(spalten, 'K', klientenfelder(), klientenspalteAus);
    trageAnfangEin(spalten, {.feld = feld::betr::kernID}, {.feld = feld::betr::betrID});
    spaltenplatz(spalten, exportspalte::kern::dauer) = {.kodierung = Kodierung::Dauer};
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
    std::string zeile;
    Zeilenbauer(zeile, sätze).baue(kernspalten());
    return zeile;
}
