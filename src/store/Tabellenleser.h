#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The content of a table. When it is missing while a work file lies there, the Laufzeitfehler names the work file
/// too: an older version of the program could lose a table between deleting and renaming, and then its content
/// is there.
std::unique_ptr<Dateiinhalt> öffneTabelle(const std::filesystem::path& tabelle);

/// File and line for the text of a failure.
std::string ortsangabe(const std::filesystem::path& tabelle, std::size_t nummer);

/// A record that is too long could be written and never be read again: Laufzeitfehler beyond 32,767 characters.
void prüfeSatzlänge(std::string_view satz, std::string_view ort);

/// The lines of a table in file order, as views that hold as long as the reader.
class Tabellenleser {
public:
    /// Throws Laufzeitfehler when the table can't be read.
    explicit Tabellenleser(const std::filesystem::path& tabelle);

    /// The next line, or nothing at the end. A line whose fields can't be counted (more than 32,767 characters) is
    /// a Laufzeitfehler.
    std::optional<std::string_view> nächste();
    /// Number of the line last read, from 1.
    std::size_t nummer() const { return m_zeilen.nummer(); }
    /// A field of the line last read as a number of 16 or 32 bits; Laufzeitfehler when it is none.
    std::int32_t schlüssel(int feld, int bits) const;

private:
    std::filesystem::path m_tabelle;
    std::unique_ptr<Dateiinhalt> m_inhalt;
    Zeilen m_zeilen;
    std::string_view m_zeile;
};
