#pragma once

#include "platform/dateien/Zeilen.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

/// Finds lines of a table by key, with the answers of a search that reads the table from its start every time,
/// but in one pass over it: each search goes on reading where the last one stopped, and remembers what it has
/// passed. The lines are views into the table.
class Zeilensuche {
public:
    /// `schlüssel` gives the key of a line.
    Zeilensuche(std::string_view tabelle, std::function<std::string(std::string_view zeile)> schlüssel)
        : m_zeilen(tabelle), m_schlüssel(std::move(schlüssel))
    {}

    /// The first line with the key, empty without one. What `schlüssel` throws for a line on the way passes.
    std::string_view finde(const std::string& schlüssel);

private:
    Zeilen m_zeilen;
    std::function<std::string(std::string_view)> m_schlüssel;
    std::unordered_map<std::string, std::string_view> m_gelesen;
};
