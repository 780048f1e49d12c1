#pragma once

#include <cstdint>
#include <string_view>

/// A checksum of 64 bits over a run of bytes, however it is cut into pieces. It tells a file that was written whole
/// from one that was not; it guards against accidents, not against forgers. Eight bytes a step, since it runs over
/// every table that is written.
class Prüfsumme {
public:
    void nimm(std::string_view bytes);
    std::uint64_t wert() const;

    static std::uint64_t von(std::string_view bytes);

private:
    std::uint64_t m_summe = 0x9E3779B97F4A7C15U;
    std::uint64_t m_rest = 0; ///< bytes that do not fill a step yet, the first one lowest
    std::uint64_t m_länge = 0;
};
