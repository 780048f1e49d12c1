#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the walk expects of the tables and finds broken (code page).
using Verstöße = std::vector<std::string>;

using Betreuungsschlüssel = std::pair<int, int>; ///< kernID, betrID

/// The three tables as they lie on the disk: whole texts, and records by their keys.
struct Tabellenstand {
    std::string kern, betr, diag; ///< the files, byte for byte
    std::map<int, std::string> klienten;
    std::map<Betreuungsschlüssel, std::string> betreuungen;
    std::map<Betreuungsschlüssel, std::string> diagnosen;

    bool operator==(const Tabellenstand&) const = default;
};

/// Reads the tables `kernDat`, `betrDat` and `diagDat` with the ending (".txt", ".bak"). Lines without a
/// usable key, and keys that stand twice, are added to `verstöße`.
Tabellenstand liesTabellen(const std::filesystem::path& daten, const std::string& endung, Verstöße& verstöße);
/// Whether the tables with the ending are, byte for byte, those of the state.
bool liegenDa(const Tabellenstand& stand, const std::filesystem::path& daten, const std::string& endung);

/// Field counts, every episode with one diagnosis record and a client, begin and end.
void prüfeAufbau(const Tabellenstand& stand, Verstöße& verstöße);
/// Pairs of episodes of one client that share a day.
std::set<std::pair<Betreuungsschlüssel, Betreuungsschlüssel>> überschneidungen(const Tabellenstand& stand);
/// The status that the episodes of the client give it: "o", "a", or nothing.
std::string statusVon(const Tabellenstand& stand, int kernID);
/// The status in the client's record; the character of code 0 is nothing.
std::string gespeicherterStatus(std::string_view klient);
/// The fields of a record.
std::vector<std::string_view> felderVon(std::string_view satz);
