#pragma once

#include "platform/mappe/Arbeitsmappe.h"
#include "platform/mappe/Tabellenprogramm.h"

#include <filesystem>

/// Writes the workbook as .xlsx: numbers as numbers, dates as dates shown as TT.MM.JJJJ, texts as texts and never
/// as formulas, comments hidden, bold rows, fitted columns. The file is made, or emptied, with the rights that it
/// has. Work files of the writer go into the folder of the file. The packing, which takes longer than the
/// rows, runs in a thread of its own; `zwischendurch` is called by the caller's thread all the time, also then.
/// Throws Laufzeitfehler.
void schreibeXlsx(const Arbeitsmappe& mappe, const std::filesystem::path& pfad,
                  const Zwischendurch& zwischendurch = {});
