#pragma once

#include "export/Exportspalte.h"
#include "satz/Satzaufbau.h"

#include <functional>
#include <vector>

/// The columns of a row kind: for each record field whose column in `satzfelder` is on the sheet `blatt` ('K'
/// or 'D'), `kodierung` tells how it is written; of fields that share a column, the first counts.
void trageFelderEin(std::vector<Exportspalte>& spalten, char blatt, const std::vector<Satzfeld>& satzfelder,
                    const std::function<Exportspalte(const Satzfeld& feld, int nummer)>& kodierung);
