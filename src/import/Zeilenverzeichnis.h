#pragma once

#include "import/Eingabedatei.h"

#include <string_view>
#include <unordered_map>

/// The lines of a file by a key, empty ones left out: the first with it counts. The file outlives it.
template <class Schlüssel> class Zeilenverzeichnis {
public:
    /// `schlüssel(zeile)` gives the key of a line.
    template <class F> Zeilenverzeichnis(const Eingabedatei& datei, F schlüssel)
    {
        datei.fürJedenSatz([&](std::string_view zeile) {
            m_zeilen.try_emplace(schlüssel(zeile), zeile);
            m_letzte = zeile;
        });
    }

    /// The line with the key, empty without one.
    std::string_view finde(const Schlüssel& schlüssel) const { return finde(schlüssel, {}); }
    /// The same, but the last line of all stands in for one that is missing.
    std::string_view findeOderLetzte(const Schlüssel& schlüssel) const { return finde(schlüssel, m_letzte); }

private:
    std::string_view finde(const Schlüssel& schlüssel, std::string_view sonst) const
    {
        const auto ort = m_zeilen.find(schlüssel);
        return ort == m_zeilen.end() ? sonst : ort->second;
    }

    std::unordered_map<Schlüssel, std::string_view> m_zeilen;
    std::string_view m_letzte;
};
