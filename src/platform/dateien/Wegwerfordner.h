#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

/// A temporary folder that only its owner can enter, gone with the object.
///
/// The folder is locked as long as the object lives, and the lock ends with the process. So a later start can tell
/// what was left behind by one that did not end well, and removes it.
class Wegwerfordner {
public:
    /// Makes the folder; its name begins with the prefix. Throws Laufzeitfehler.
    explicit Wegwerfordner(std::string_view vorsilbe);
    Wegwerfordner(const Wegwerfordner&) = delete;
    Wegwerfordner& operator=(const Wegwerfordner&) = delete;
    ~Wegwerfordner();

    const std::filesystem::path& pfad() const { return m_pfad; }

    /// Removes this user's folders with the prefix that no living process holds.
    static void räumeAuf(std::string_view vorsilbe);

private:
    std::filesystem::path m_pfad;
    std::intptr_t m_schloss = -1;
};
