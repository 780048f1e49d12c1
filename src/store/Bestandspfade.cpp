#include "store/Bestandspfade.h"

const std::filesystem::path& Bestandspfade::von(Tabelle tabelle) const
{
    switch (tabelle) {
    case Tabelle::Kern:
        return kernDat;
    case Tabelle::Betr:
        return betrDat;
    case Tabelle::Diag:
        return diagDat;
    case Tabelle::KernBak:
        return kernBak;
    case Tabelle::BetrBak:
        return betrBak;
    case Tabelle::DiagBak:
        break;
    }
    return diagBak;
}

Bestandspfade bildeBestandspfade(const std::filesystem::path& programmordner)
{
    const auto daten = programmordner / "Daten";
    return {.daten = daten,
            .kernDat = daten / "kernDat.txt",
            .betrDat = daten / "betrDat.txt",
            .diagDat = daten / "diagDat.txt",
            .kernBak = daten / "kernDat.bak",
            .betrBak = daten / "betrDat.bak",
            .diagBak = daten / "diagDat.bak",
            .vorgang = daten / "Vorgang.txt",
            .sicherungen = daten / "Sicherungen",
            .dummyDatei = programmordner / "dummyFile.txt",
            .probe = programmordner / "Tolvek7.probe",
            .importordner = programmordner / "importDummyVerz"};
}
