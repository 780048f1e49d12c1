#pragma once

#include "export/Exportspalte.h"
#include "satz/Satzaufbau.h"

#include <functional>
#include <vector>

/// The columns of a row kind: for each record field whose column in `satzfelder` is on the sheet `blatt` ('K'
/// or 'D'), `kodierung` tells how it is written; of fields that share a column, the first counts. The row grows to the
/// last column that a field has.
void trageFelderEin(std::vector<Exportspalte>& spalten, char blatt, const std::vector<Satzfeld>& satzfelder,
                    const std::function<Exportspalte(const Satzfeld& feld, int nummer)>& kodierung);

/// Column `nummer` (from 1).
Exportspalte& spaltenplatz(std::vector<Exportspalte>& spalten, int nummer);

/// The columns with which both rows begin.
void trageAnfangEin(std::vector<Exportspalte>& spalten, const Exportspalte& kernID, const Exportspalte& betrID);
