#pragma once

#include "satz/Datumstexte.h"
#include "satz/Zeilenfelder.h"

#include <string>
#include <string_view>

// The small routines of all subsystems by their chief file: fields of a line, dates, and what belongs to neither.

/// Surname and given name of a client record, as the screens of an episode show them.
std::string klientenname(std::string_view kernDS);

/// The folder part of a path text: what stands before the last ":" or path separator, without it.
std::string pfadVon(std::string_view pfad);
