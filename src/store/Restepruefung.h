#pragma once

#include "platform/dateien/Dateien.h"
#include "store/Befund.h"

/// What a run that was broken off has left beside the tables: a commit record, work files, folders.
void prüfeReste(Dateien& dateien, const Bestandspfade& pfade, Befundliste& befunde);
