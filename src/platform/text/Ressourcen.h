#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Rows that have a text each: entry `erste` of the string resources is their number, row n (from 1) the n-th behind
/// it.
struct Texttabelle {
    int erste = 0;
    int zeilen = 0;
    std::function<std::string(int zeile)> text;
};

/// The program's string resources: texts by number (code page). The subsystems put their tables in at start; the rows
/// stay what they are, and a text is made of them when somebody asks for it.
class Ressourcen {
public:
    void nimm(Texttabelle tabelle) { m_tabellen.push_back(std::move(tabelle)); }

    /// The text with the number, or nothing when there is none.
    std::optional<std::string> finde(int nummer) const
    {
        for (const auto& tabelle : m_tabellen) {
            const int zeile = nummer - tabelle.erste;
            if (zeile >= 0 && zeile <= tabelle.zeilen) {
                return zeile == 0 ? std::to_string(tabelle.zeilen) : tabelle.text(zeile);
            }
        }
        return std::nullopt;
    }

private:
    std::vector<Texttabelle> m_tabellen;
};
