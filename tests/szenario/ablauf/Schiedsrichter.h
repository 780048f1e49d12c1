#pragma once

#include "store/Befund.h"

#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

/// Whether the kind speaks of what somebody has entered, not of how the records are built: the import takes over what
/// the older data say, overlapping periods and unknown codes included.
bool betrifftAngaben(const Befundart& art);

/// Runs the program's own checker on the folder of a scenario: what the program has written must not be a finding.
/// Findings that the scenario itself has brought in by writing files are remembered before the program acts on them.
class Schiedsrichter {
public:
    explicit Schiedsrichter(std::filesystem::path programmordner) : m_ordner(std::move(programmordner)) {}

    /// The scenario has written files past the program.
    void vermerkeFremdesSchreiben() { m_fremdesSchreiben = true; }
    /// Before the program acts: what is there is the scenario's, when it has written since.
    void vorHandlung();
    /// Before a start: what is there is known, whoever it comes from.
    void vorStart();
    /// Throws Scheitern when a kind of finding has come up in a place where it was not before.
    void prüfe();

private:
    using Merkmal = std::tuple<Befundart, std::string, int>; ///< kind, file, field

    std::vector<Befund> finde() const;
    bool istEntschuldigt(const Befund& befund) const;
    static Merkmal merkmalVon(const Befund& befund);
    void merke();

    std::filesystem::path m_ordner;
    std::set<Merkmal> m_bekannte;
    bool m_fremdesSchreiben = false;
};
