#pragma once

#include "platform/umgebung/Meldung.h"
#include "store/Bestandspfade.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The store's one door for what it has to say: text (code page) and icon of a box that blocks until it is read.
using Bestandsmeldung = std::function<void(std::string_view text, Symbol symbol)>;

/// Told of each line of a table in file order, its number from 1; false ends the walk.
using Zeilenbesuch = std::function<bool(std::string_view zeile, std::size_t nummer)>;

/// What a record is found by: the client, and in the tables of episodes the episode.
struct Satzschlüssel {
    std::int32_t kernID;
    std::optional<std::int32_t> betrID = std::nullopt;

    std::string text() const; ///< "3", "3-1"
    bool operator==(const Satzschlüssel&) const = default;
};

/// The reading operations on the tables. Keys are compared as 16-bit numbers; a key that is none, a missing file,
/// a line of more than 32,767 characters are Laufzeitfehler that name file, line and field.
class Lesestand {
public:
    Lesestand(const Bestandspfade& pfade, const Bestandsmeldung& meldung) : m_pfade(pfade), m_meldung(meldung) {}
    virtual ~Lesestand() = default;

    /// The first line with the key; without one the box "Fehler in get…" and an empty text.
    std::string getKernDS(std::int32_t kernID) const { return get(Tabelle::Kern, {kernID}); }
    std::string getBetrDS(std::int32_t kernID, std::int32_t betrID) const
    {
        return get(Tabelle::Betr, {kernID, betrID});
    }
    std::string getDiagDS(std::int32_t kernID, std::int32_t betrID) const
    {
        return get(Tabelle::Diag, {kernID, betrID});
    }
    /// Highest id, 0 when the table is empty.
    std::int32_t höchsteKernID() const;
    /// Highest betrID of the client, 0 when it has none.
    std::int32_t höchsteBetrID(std::int32_t kernID) const;
    /// "o" when a care record of the client is open, "a" when it has some and none is open, else empty. Field 1
    /// is compared as text.
    std::string betrStatusVon(std::string_view kernID) const;

    /// Walks a table's lines.
    virtual void laufe(Tabelle tabelle, const Zeilenbesuch& besuch) const = 0;
    /// The same to its end.
    void fürJedeZeile(Tabelle tabelle,
                      const std::function<void(std::string_view zeile, std::size_t nummer)>& tue) const;
    /// File and line of the record, as messages name them; the file alone when the record is not found.
    std::string ortVon(Tabelle tabelle, const Satzschlüssel& schlüssel) const;

    const Bestandspfade& pfade() const { return m_pfade; }
    const Bestandsmeldung& meldung() const { return m_meldung; }

private:
    std::string get(Tabelle tabelle, const Satzschlüssel& schlüssel) const;

    const Bestandspfade& m_pfade;
    const Bestandsmeldung& m_meldung;
};

/// How messages name the records of one of the three tables: "KernDS", "BetrDS", "DiagDS".
std::string_view satznameIn(Tabelle tabelle);

/// File and line for the text of a failure.
std::string ortsangabe(const std::filesystem::path& tabelle, std::size_t nummer);
/// A record that is too long could be written and never be read again: Laufzeitfehler beyond 32,767 characters.
void prüfeSatzlänge(std::string_view satz, const std::filesystem::path& tabelle, std::size_t nummer = 0);
/// A key field read as the tables read it. `bits` is 16 or 32. Laufzeitfehler names file, line, field.
std::int32_t leseSchlüssel(std::string_view zeile, int feld, int bits, const std::filesystem::path& tabelle,
                           std::size_t nummer);
/// What a line of the table is found by. Every key field of it is read, so that a table with a damaged key is not read
/// past that line.
Satzschlüssel leseSchlüsselDerZeile(Tabelle tabelle, std::string_view zeile, const std::filesystem::path& pfad,
                                    std::size_t nummer);
