#include "platform/dateien/Zeilen.h"

#include <algorithm>
#include <cstring>

/// The next LF, or the end of the text.
const char* Zeilen::findeLf()
{
    if (m_nächstesLf == nullptr || m_nächstesLf < m_rest.data()) {
        const void* lf = std::memchr(m_rest.data(), '\n', m_rest.size());
        m_nächstesLf = lf == nullptr ? m_rest.data() + m_rest.size() : static_cast<const char*>(lf);
    }
    return m_nächstesLf;
}

std::optional<std::string_view> Zeilen::nächste()
{
    if (m_rest.empty()) {
        return std::nullopt;
    }
    ++m_nummer;
    // a CR before the LF either belongs to it or ends a line of its own
    const auto bisLf = static_cast<std::size_t>(findeLf() - m_rest.data());
    const void* cr = std::memchr(m_rest.data(), '\r', bisLf);
    const auto länge = cr == nullptr ? bisLf : static_cast<std::size_t>(static_cast<const char*>(cr) - m_rest.data());
    const auto zeile = m_rest.substr(0, länge);
    const bool crlf = cr != nullptr && m_rest.substr(länge).starts_with("\r\n");
    m_rest.remove_prefix(std::min(m_rest.size(), länge + (crlf ? 2U : 1U)));
    return zeile;
}

std::size_t zähleZeilen(std::string_view inhalt)
{
    Zeilen zeilen(inhalt);
    while (zeilen.nächste()) {
    }
    return zeilen.nummer();
}
