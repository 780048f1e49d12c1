#include "store/Bestandspfade.h"

const std::filesystem::path& Bestandspfade::von(Tabelle tabelle) const
{
    constexpr std::array pfade{&Bestandspfade::kernDat, &Bestandspfade::betrDat, &Bestandspfade::diagDat,
                               &Bestandspfade::kernBak, &Bestandspfade::betrBak, &Bestandspfade::diagBak};
    return this->*pfade.at(static_cast<std::size_t>(tabelle));
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
