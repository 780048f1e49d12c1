#pragma once

#include <string_view>
#include <unordered_map>

/// Lines by a key: the first with it counts. The last line of all stands in for one that is missing.
template <class Schlüssel> class Zeilenverzeichnis {
public:
    void nimm(const Schlüssel& schlüssel, std::string_view zeile)
    {
        m_zeilen.try_emplace(schlüssel, zeile);
        m_letzte = zeile;
    }

    std::string_view zeile(const Schlüssel& schlüssel) const
    {
        const auto ort = m_zeilen.find(schlüssel);
        return ort == m_zeilen.end() ? m_letzte : ort->second;
    }

private:
    std::unordered_map<Schlüssel, std::string_view> m_zeilen;
    std::string_view m_letzte;
};
