#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

/// The operations on the three tables. Every one opens the file, scans it from the start and closes it;
/// nothing is cached, so what another hand wrote is seen at the next operation. Keys are compared as 16-bit
/// numbers; a key that is none, a missing file, a failed write are Laufzeitfehler.

std::string getKernDS(std::int32_t kernID);
void anfügeKernDS(std::string_view satz);
void ersetzeKernDS(std::int32_t kernID, std::string_view satz);
void löscheKernDS(std::int32_t kernID);
/// Highest id, 0 when the table is empty.
std::int32_t höchsteKernID();

std::string getBetrDS(std::int32_t kernID, std::int32_t betrID);
void anfügeBetrDS(std::string_view satz);
void ersetzeBetrDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz);
void löscheBetrDS(std::int32_t kernID, std::int32_t betrID);
/// Highest betrID of the client, 0 when it has none.
std::int32_t höchsteBetrID(std::int32_t kernID);

std::string getDiagDS(std::int32_t kernID, std::int32_t betrID);
void anfügeDiagDS(std::string_view satz);
void ersetzeDiagDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz);
void löscheDiagDS(std::int32_t kernID, std::int32_t betrID);

/// "o" when a care record of the client is open, "a" when it has some and none is open, else empty. Field 1
/// is compared as text.
std::string betrStatusVon(std::string_view kernID);

/// Session backup of the tables into the .bak files; no client is selected afterwards.
void sichereDateien();
/// The .bak files back over the tables; can be repeated.
void verwerfeSitzung();

/// Walks a table's lines in file order (line number from 1).
void fürJedeZeile(const std::filesystem::path& tabelle,
                  const std::function<void(std::string_view zeile, std::size_t nummer)>& tue);
/// A key field read as the tables read it. `bits` is 16 or 32. Laufzeitfehler names file, line, field.
std::int32_t leseSchlüssel(std::string_view zeile, int feld, int bits, const std::filesystem::path& tabelle,
                           std::size_t nummer);
