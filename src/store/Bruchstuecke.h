#pragma once

#include "store/Bestand.h"

#include <string_view>

/// Repair at start: older versions wrote a new record behind the others, and a crash on the way could leave the first
/// bytes of it, without a line end. As long as not even its keys are whole it belongs to nobody, and no list of clients
/// or episodes could be read past it: it is taken out, the table as it was is kept in the backups, and a box says so. A
/// line whose keys are whole stays as it is.
/// What of a table's text is such a last line; empty without one.
std::string_view bruchstückIn(std::string_view inhalt);

void stelleBruchstückeBeiseite(const Bestand& bestand);
