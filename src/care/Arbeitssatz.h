#pragma once

#include "zustand/Zustand.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The records of an episode and its working copy: cut into pieces at opening, joined again at OK. The
/// pieces lie in the record one behind the other, so joining is the exact reverse of cutting.

/// Whom the care and the diagnosis record belong to.
struct Betreuungsschlüssel {
    std::int32_t kernID = 0;
    std::int32_t betrID = 0;
};

/// Cuts aktBetrDS and aktDiagDS into the pieces of the pages, each field followed by the delimiter. Fields
/// that the record lacks become empty ones.
void zerlegeBetrDS(Arbeitskopie& kopie);

/// The care-level memo of a care record.
std::string memoBAus(std::string_view betrDS);
/// The client-level memo of a client record.
std::string memoKAus(std::string_view kernDS);

/// The care record of 192 fields: key, period, pieces, memo; no delimiter at its end.
std::string baueBetrDS(const Betreuungsschlüssel& schlüssel, std::string_view von, std::string_view bis,
                       const Arbeitskopie& kopie, std::string_view memoB);
/// The diagnosis record; its line ends in a delimiter, one more than a new record has.
std::string baueDiagDS(const Betreuungsschlüssel& schlüssel, const Arbeitskopie& kopie);
/// The client record of 11 fields, with its care state and memo worked in anew.
std::string baueKernDS(std::string_view kernDS, std::string_view betrao, std::string_view memoK);
