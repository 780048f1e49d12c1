#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Files of the older generation for tests and measurements. The facilities and people are invented.

using Altfelder = std::vector<std::pair<int, std::string_view>>; ///< field number, text

/// A client line: number, names, birth date, sex, nationality; `felder` replaces fields.
std::string altKlient(int nummer, const Altfelder& felder = {});
/// A care line of 151 fields, from 01.02.2005 on and open, everything else empty; `felder` replaces fields.
std::string altBetreuung(int klient, int nummer, const Altfelder& felder = {});

struct Altdaten {
    std::vector<std::string> klienten;
    std::vector<std::string> betreuungen;
};

/// An older facility. The same seed gives the same files; every field holds what the layout allows, and no
/// field what the instructions beside the program could not read.
Altdaten erzeugeAltdaten(int klienten, int betreuungenJeKlient, unsigned saat);
