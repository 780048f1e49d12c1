#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <utility>

/// What the file operations of all systems rest on; for the file layer alone. Numbers of failures are the system's own:
/// errno, on Windows GetLastError.

/// Owns what the system gives for an open file or folder: a descriptor, on Windows a handle.
class Systemgriff {
public:
    Systemgriff() = default;
    explicit Systemgriff(std::intptr_t nummer) : m_nummer(nummer) {}
    Systemgriff(Systemgriff&& anderer) noexcept : m_nummer(std::exchange(anderer.m_nummer, keine)) {}
    Systemgriff& operator=(Systemgriff&& anderer) noexcept
    {
        std::swap(m_nummer, anderer.m_nummer);
        return *this;
    }
    ~Systemgriff() { schließe(); }

    bool istOffen() const { return m_nummer != keine; }
    std::intptr_t nummer() const { return m_nummer; }
    /// False when the system reports a failure.
    bool schließe();

private:
    static constexpr std::intptr_t keine = -1; ///< what each system gives when it has opened nothing
    std::intptr_t m_nummer = keine;
};

/// A reason that a person can do something about, in German (code page), and the failures that it stands for.
struct Systemgrund {
    std::string_view text;
    std::array<unsigned long, 8> fehler;
};
std::span<const Systemgrund> systemgründe();

/// The reason of a failed operation in German (code page); one that has no text of its own by its number.
std::string systemgrund(unsigned long fehler);
/// Throws Dateifehler with the reason of the last failure unless the operation has succeeded.
void prüfeSystem(bool gelungen);
/// The same for what was to be opened.
Systemgriff geprüft(Systemgriff griff);

/// A file for reading. Never waits: an open pipe would otherwise stop the program until somebody writes into it.
Systemgriff öffneZumLesen(const std::filesystem::path& pfad);
/// Dateifehler where it is no ordinary file.
std::uint64_t längeVon(const Systemgriff& griff);
/// Reads from byte `ab` on as much as there is and has room; how much that was, 0 at the end.
std::size_t liesAb(const Systemgriff& griff, std::uint64_t ab, std::span<char> ziel);
