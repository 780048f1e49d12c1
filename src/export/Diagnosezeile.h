#pragma once

#include "export/Exportspalte.h"
#include "export/Satzsicht.h"
#include "store/Lesestand.h"

#include <string>
#include <string_view>
#include <vector>

/// The 177 columns of the diagnosis row (Diagnose.txt), column n at element n-1.
const std::vector<Exportspalte>& diagnosespalten();

/// The diagnosis row of an episode without line end: 177 values, each followed by ";". A text that a value
/// list does not hold shows a box and goes on.
std::string erstelleDiagZeile(std::string_view betrDS, std::string_view diagDS, std::string_view tsnr,
                              const Bestandsmeldung& meldung);
/// The same appended to `ziel`, from records that are cut already.
void hängeDiagZeileAn(std::string& ziel, const Satzsicht& betreuung, const Satzsicht& diagnose, std::string_view tsnr,
                      const Bestandsmeldung& meldung);
