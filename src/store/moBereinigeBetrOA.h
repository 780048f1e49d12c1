#pragma once

#include "store/Bestand.h"

/// Repair at start: works out anew, from the care table, the status field `betrao` of every client: "o" with an
/// open episode, "a" with closed ones only, the character with code 0 with none.
///
/// Run-time failures are passed over: a care line without a readable number counts for nobody, a client line that
/// can't be read or lacks the field stays as it is, and when a file can't be read or written the client table
/// stays as it was. No line is ever dropped.
void bereinigeBetrOA(const Bestand& bestand);
