#pragma once

#include <array>
#include <string_view>

/// A care line of the older system, cut into its fields.
class Betreuungssatz {
public:
    static constexpr int höchsteFeldzahl = 153;

    /// Takes the next line. The fields that a shorter line lacks keep what the line before had there. More
    /// than `höchsteFeldzahl` are a Laufzeitfehler.
    void lies(std::string_view zeile);

    /// A field from 1 on; another number is a Laufzeitfehler.
    std::string_view feld(int nummer) const;
    /// The same with one blank counting as empty.
    std::string_view feldOhneLeerzeichen(int nummer) const;
    bool istLeer(int nummer) const { return feldOhneLeerzeichen(nummer).empty(); }

    std::string_view zeile() const { return m_zeile; }
    /// Number of lines taken so far.
    std::size_t gelesene() const { return m_gelesene; }

private:
    std::array<std::string_view, höchsteFeldzahl> m_felder;
    std::string_view m_zeile;
    std::size_t m_gelesene = 0;
};
