#pragma once

#include <string>
#include <unordered_map>

/// The program's string resources: constant texts by number (code page). The subsystems put their tables
/// in at start.
class Ressourcen {
public:
    void setze(int nummer, std::string text) { m_texte.insert_or_assign(nummer, std::move(text)); }

    /// The text with the number, or nothing (nullptr) when there is none.
    const std::string* finde(int nummer) const
    {
        const auto ort = m_texte.find(nummer);
        return ort == m_texte.end() ? nullptr : &ort->second;
    }

private:
    std::unordered_map<int, std::string> m_texte;
};
