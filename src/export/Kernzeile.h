#pragma once

#include "export/Zeilenbauer.h"

#include <string>
#include <vector>

/// The columns of the core row (Kern.txt), column n at element n-1.
const std::vector<Exportspalte>& kernspalten();

/// The core row of an episode without line end: a value for each column, each followed by ";". A text that a value list
/// does not hold shows a box and goes on.
std::string erstelleKernZeile(const Exportsätze& sätze);
