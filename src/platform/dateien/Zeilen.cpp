#include "platform/dateien/Zeilen.h"

#include <cstring>

namespace {

/// Position of the first line end, or npos. LF is searched first; a CR before it either belongs to it or
/// ends a line of its own.
std::size_t findeZeilenende(std::string_view text)
{
    const void* lf = std::memchr(text.data(), '\n', text.size());
    const std::size_t bis =
        lf == nullptr ? text.size() : static_cast<std::size_t>(static_cast<const char*>(lf) - text.data());
    const void* cr = std::memchr(text.data(), '\r', bis);
    if (cr != nullptr) {
        return static_cast<std::size_t>(static_cast<const char*>(cr) - text.data());
    }
    return lf == nullptr ? std::string_view::npos : bis;
}

} // namespace

std::optional<std::string_view> Zeilen::nächste()
{
    if (m_rest.empty()) {
        return std::nullopt;
    }
    ++m_nummer;
    const auto ende = findeZeilenende(m_rest);
    if (ende == std::string_view::npos) {
        const auto zeile = m_rest;
        m_rest.remove_prefix(m_rest.size());
        return zeile;
    }
    const auto zeile = m_rest.substr(0, ende);
    const bool crlf = m_rest[ende] == '\r' && ende + 1 < m_rest.size() && m_rest[ende + 1] == '\n';
    m_rest.remove_prefix(ende + (crlf ? 2 : 1));
    return zeile;
}

std::size_t zähleZeilen(std::string_view inhalt)
{
    Zeilen zeilen(inhalt);
    while (zeilen.nächste()) {
    }
    return zeilen.nummer();
}
