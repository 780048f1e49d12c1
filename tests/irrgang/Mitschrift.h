#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

/// The walk as a scenario: for each step the statements that repeat it.
class Mitschrift {
public:
    void beginneSchritt() { m_schritte.emplace_back(); }
    /// Adds a statement (UTF-8) to the step.
    void schreibe(const std::string& anweisung) { m_schritte.back().push_back(anweisung); }

    /// The last steps, or all.
    void gibAus(std::ostream& ziel, std::size_t höchstens) const;
    std::size_t anzahl() const { return m_schritte.size(); }

private:
    std::vector<std::vector<std::string>> m_schritte;
};
