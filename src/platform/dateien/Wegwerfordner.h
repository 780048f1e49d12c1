#pragma once

#include "platform/dateien/Systemgriff.h"

#include <filesystem>
#include <string_view>

/// A temporary folder that only its owner can enter, gone with the object unless `behalte` was called.
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
    /// The system's handle of the lock, for a child process that goes on with the folder.
    std::intptr_t schloss() const { return m_schloss.nummer(); }
    /// Leaves the folder to others; the lock still ends with the object.
    void behalte() { m_meiner = false; }

    /// Removes this user's folders with the prefix that no living process holds.
    static void räumeAuf(std::string_view vorsilbe);

private:
    std::filesystem::path m_pfad;
    Systemgriff m_schloss;
    bool m_meiner = true; ///< this object removes the folder
};
