#pragma once

#include "export/Zeilenbauer.h"
#include "satz/Satzaufbau.h"

#include <vector>

/// The columns of a row kind: for each record field whose column in `satzfelder` is on the sheet `blatt` ('K'
/// or 'D'), `spalteAus` tells how it is written; of fields that share a column, the first counts. The row grows to the
/// last column that a field has.
void trageFelderEin(std::vector<Exportspalte>& spalten, char blatt, const std::vector<Satzfeld>& satzfelder,
                    Exportspalte (*spalteAus)(const Satzfeld& feld, int nummer));

/// Column `nummer` (from 1).
Exportspalte& spaltenplatz(std::vector<Exportspalte>& spalten, int nummer);

/// The columns with which both rows begin.
void trageAnfangEin(std::vector<Exportspalte>& spalten, const Exportspalte& kernID, const Exportspalte& betrID);
