#pragma once

#include "store/Lesestand.h"

#include <functional>

/// Failures on values of a record name the file, the line and the field where the value stands, so that whoever
/// helps finds it. The place is looked up when something has failed, not before.

/// Runs rules on field `feld` of the record; a Laufzeitfehler goes on with file, line and field before its text.
void mitSatzort(Tabelle tabelle, const Satzschlüssel& schlüssel, int feld, const std::function<void()>& tue);

/// Runs rules on begin and end of the client's episodes; a Laufzeitfehler names the first of these dates that can't
/// be read. Without one it goes on as it is.
void mitDatumsort(std::int32_t kernID, const std::function<void()>& tue);
