#pragma once

class Ressourcen;

/// The two instruction tables of the import's last stage: row n tells how field n of a care record (entries
/// 4001 to 4192) or of a diagnosis record (5001 to 5247) arises from the rows of the yearly export. The first
/// entry of a table holds its number of rows.
///
/// A row is a text of 59 fields: source ("K16": column 16 of the core row, "D124": of the diagnosis row), type,
/// then pairs of result and code. They are derived from the record layouts and the value lists, so that the
/// export and the import are one mapping read in two directions.
inline constexpr int betreuungsanweisungen = 4000;
inline constexpr int diagnoseanweisungen = 5000;
inline constexpr int felderJeAnweisung = 59;

/// Puts both tables into the string resources; the catalogue of problem areas has to be built.
void registriereAnweisungen(Ressourcen& ressourcen);
