#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

enum class Oberflächenwahl { Ohne, Qt, Beide };

/// What the runner is called with.
struct Befehlszeile {
    Oberflächenwahl oberfläche = Oberflächenwahl::Beide;
    std::string nur; ///< only scenarios whose path contains it
    std::vector<std::filesystem::path> orte;
};

/// Throws Aufruffehler.
Befehlszeile liesBefehlszeile(const std::vector<std::string>& argumente);

/// The scenario files: folders with all that they contain, in order of their names. Throws Aufruffehler for a
/// place that is not there.
std::vector<std::filesystem::path> findeSzenarien(const Befehlszeile& befehlszeile);

/// A call that says nothing the runner could do.
class Aufruffehler : public std::runtime_error {
public:
    explicit Aufruffehler(const std::string& text) : std::runtime_error(text) {}
};
