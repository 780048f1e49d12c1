#pragma once

#include "store/Zeilenpruefung.h"

#include "platform/text/Datum.h"

#include <optional>

/// The values of one record, without a look at other records.

/// Every field with a value list, a range of numbers or a form.
void prüfeWerte(const Satzzeile& satz);
/// The bit field of a diagnosis record against its blocks.
void prüfeBitfeld(const Satzzeile& satz);
/// A date field, in which `ausnahme` stands for no date. The date, if it is one.
std::optional<Datum> prüfeDatum(const Satzzeile& satz, int feld, std::string_view ausnahme);
