#pragma once

#include "platform/dateien/Dateien.h"
#include "store/Lesestand.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A table as an action is about to leave it: the content that was read, and what has been changed since. Nothing of
/// it is on the disk before the action is finished.
///
/// A table that only gets lines at its end keeps every byte that it had; one whose lines are looked up is taken
/// apart once, with the keys of all lines, so that the many deletions of an action cost one pass together. It is
/// written with CR LF line ends then.
class Fassung {
public:
    /// `alteLänge` is that of the file on the disk; none: it is not there yet.
    Fassung(Tabelle tabelle, std::filesystem::path pfad, std::unique_ptr<Dateiinhalt> inhalt,
            std::optional<std::uint64_t> alteLänge);
    Fassung(const Fassung&) = delete;
    Fassung& operator=(const Fassung&) = delete;

    void anfüge(std::string_view satz);
    /// Puts the record in the place of every line with the key; false without one.
    bool ersetze(const Satzschlüssel& schlüssel, std::string_view satz);
    /// Takes out every line with the key; false without one.
    bool lösche(const Satzschlüssel& schlüssel);
    /// Takes out every line of the client.
    void löscheKlienten(std::int32_t kernID);

    void laufe(const Zeilenbesuch& besuch) const;
    void schreibe(Schreiber& schreiber) const;
    std::optional<std::uint64_t> alteLänge() const { return m_alteLänge; }

private:
    struct Zeile {
        std::string_view text;
        Satzschlüssel schlüssel;
    };

    void zerlege();
    std::string_view behalte(std::string_view satz);

    Tabelle m_tabelle;
    std::filesystem::path m_pfad;
    std::unique_ptr<Dateiinhalt> m_inhalt;
    std::optional<std::uint64_t> m_alteLänge;
    std::deque<std::string> m_neue;         ///< owns the texts of new lines
    std::vector<std::string_view> m_anhang; ///< new lines at the end, while the table is in one piece
    std::optional<std::vector<Zeile>> m_zeilen;
};
