#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/mappe/Arbeitsmappe.h"
#include "spreadsheet/moErstelleHeader.h"

#include <filesystem>
#include <string_view>

/// The three raw sheets: three header rows, then the table, one row a line and one cell a field, without the
/// memos and the fields that no reader of the sheet has a use for. A table whose first line is empty leaves
/// its sheet blank.

struct Rohblätter {
    Blatt& kern;
    Blatt& betr;
    Blatt& diag;
};

/// Makes `KernDat`, `BetrDat` and `DiagDat` the sheets of the workbook, in this order.
Rohblätter legeBlätterAn(Arbeitsmappe& mappe);

/// The content of the table as a view that lives as long as the workbook. Throws Laufzeitfehler.
std::string_view liesTabelle(Arbeitsmappe& mappe, Dateien& dateien, const std::filesystem::path& pfad);

void schreibeKernDat(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe);
void schreibeBetrDat(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe);
void schreibeDiagDat(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe);
