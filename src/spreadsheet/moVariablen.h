#pragma once

#include "platform/text/Ressourcen.h"

/// The variables of the annual export with the words that the core data set gives them, as string resources:
/// name, first label and second label joined by the delimiter. 6000 and 7000 hold the number of rows, the rows
/// follow behind them. The second table leaves out a first label that repeats the row before, so that a
/// repeating group carries its heading once.
inline constexpr int basisVariablen = 6000;
inline constexpr int basisVariablenOhneWiederholung = 7000;

/// Puts both tables into the resources.
void registriereVariablen(Ressourcen& ressourcen);
