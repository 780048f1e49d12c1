#include "export/Kernzeile.h"

#include "export/Spaltentabelle.h"
#include "export/Zeilenbauer.h"

#include <array>

namespace {

constexpr std::size_t spaltenzahl = 181;

Exportspalte spalteAus(const Satzfeld& feld, int nummer)
{
    const auto mit = [&](Kodierung kodierung, std::string_view ersatz = {}) {
        return Exportspalte{.kodierung = kodierung, .feld = nummer, .werte = feld.werte, .ersatz = ersatz};
    };
    switch (feld.art) {
    case Feldart::option:
        return mit(feld.werte.data() == werte::kurz.data() ? Kodierung::KurzJaNein : Kodierung::Tabelle);
    case Feldart::zuvor:
    case Feldart::kontakte:
        return mit(Kodierung::ErsatzFürKA);
    case Feldart::kinder:
        return mit(Kodierung::ErsatzFürKA, "99"_t);
    case Feldart::nation:
        return mit(Kodierung::Nation);
    default:
        return mit(Kodierung::Gespeichert);
    }
}

/// Columns that don't come from one field of the care record alone.
void trageÜbrigeEin(std::vector<Exportspalte>& spalten)
{
    spalten[0] = {.kodierung = Kodierung::Tsnr};
    spalten[1] = {.feld = 1};
    spalten[2] = {.feld = 2};
    spalten[5] = {.kodierung = Kodierung::Dauer};
    spalten[6] = {.kodierung = Kodierung::Alter, .satz = Satzart::Klient, .feld = 10};
    spalten[7] = {.kodierung = Kodierung::Tabelle, .satz = Satzart::Klient, .feld = 9, .werte = werte::geschlecht};
}

/// The box of these columns lacks the word "hier": the short yes/no, language and migration.
void kürzeMeldungen(std::vector<Exportspalte>& spalten)
{
    constexpr std::array<std::size_t, 3> spracheUndMigration{55, 56, 57};
    for (auto& spalte : spalten) {
        if (spalte.kodierung == Kodierung::KurzJaNein) {
            spalte.meldung = "Fehler"_t;
        }
    }
    for (const auto nummer : spracheUndMigration) {
        spalten[nummer - 1].meldung = "Fehler"_t;
    }
}

std::vector<Exportspalte> baueSpalten()
{
    std::vector<Exportspalte> spalten(spaltenzahl);
    trageÜbrigeEin(spalten);
    trageFelderEin(spalten, 'K', betreuungsfelder(), spalteAus);
    kürzeMeldungen(spalten);
    return spalten;
}

} // namespace

const std::vector<Exportspalte>& kernspalten()
{
    static const auto spalten = baueSpalten();
    return spalten;
}

void hängeKernZeileAn(std::string& ziel, const Satzsicht& klient, const Satzsicht& betreuung, std::string_view tsnr)
{
    const Exportsätze sätze{.klient = &klient, .betreuung = &betreuung, .diagnose = nullptr, .tsnr = tsnr};
    Zeilenbauer(ziel, sätze).baue(kernspalten());
}

std::string erstelleKernZeile(std::string_view kernDS, std::string_view betrDS, std::string_view tsnr)
{
    std::string zeile;
    hängeKernZeileAn(zeile, Satzsicht(kernDS), Satzsicht(betrDS), tsnr);
    return zeile;
}
