#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

enum class Oberflächenwahl { Ohne, Qt, Beide };

/// What the runner is called with.
struct Befehlszeile {
    Oberflächenwahl oberfläche = Oberflächenwahl::Beide;
    std::string nur;      ///< only scenarios whose path contains it
    std::size_t teil = 1; ///< of so many parts of about the same size, the one to be run
    std::size_t teile = 1;
    std::vector<std::filesystem::path> orte;
};

/// A path as it is printed and compared, UTF-8 on every system.
std::string pfadAlsUtf8(const std::filesystem::path& pfad);

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
