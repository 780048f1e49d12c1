#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

/// What a scenario expected and what it found instead (UTF-8, one line).
class Scheitern : public std::runtime_error {
public:
    Scheitern(const std::string& erwartet, const std::string& gefunden)
        : std::runtime_error("erwartet " + erwartet + " gefunden " + gefunden)
    {}
};

/// The code-page text for people: UTF-8 in »«, control characters as escapes, long texts cut around `stelle`.
std::string zeige(std::string_view text, std::size_t stelle = 0);
