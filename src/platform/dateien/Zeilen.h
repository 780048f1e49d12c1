#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// Walks the lines of a text held in memory or in a mapped file, as views into it: no copies.
/// CR LF, LF and CR end a line; a last line may lack its line end; an empty line is a line.
class Zeilen {
public:
    explicit Zeilen(std::string_view inhalt) : m_rest(inhalt), m_anfang(inhalt.data()) {}

    /// The next line without its line end, or nothing at the end.
    std::optional<std::string_view> nächste();

    /// Number of the line last given, from 1.
    std::size_t nummer() const { return m_nummer; }
    /// Byte position at which the next line starts.
    std::size_t position() const { return static_cast<std::size_t>(m_rest.data() - m_anfang); }

private:
    const char* findeLf();

    std::string_view m_rest;
    const char* m_anfang;
    const char* m_nächstesLf = nullptr; ///< kept, so that a file of CR line ends is not searched anew for each line
    std::size_t m_nummer = 0;
};

/// The number of lines, by the same rule.
std::size_t zähleZeilen(std::string_view inhalt);
