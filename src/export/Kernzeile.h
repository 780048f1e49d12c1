#pragma once

#include "export/Exportspalte.h"
#include "export/Satzsicht.h"
#include "store/Lesestand.h"

#include <string>
#include <string_view>
#include <vector>

/// The 181 columns of the core row (Kern.txt), column n at element n-1.
const std::vector<Exportspalte>& kernspalten();

/// The core row of an episode without line end: 181 values, each followed by ";". A text that a value list
/// does not hold shows a box and goes on.
std::string erstelleKernZeile(std::string_view kernDS, std::string_view betrDS, std::string_view tsnr,
                              const Bestandsmeldung& meldung);
/// The same appended to `ziel`, from records that are cut already.
void hängeKernZeileAn(std::string& ziel, const Satzsicht& klient, const Satzsicht& betreuung, std::string_view tsnr,
                      const Bestandsmeldung& meldung);
