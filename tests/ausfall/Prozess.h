#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

using Umgebungswerte = std::map<std::string, std::string>;

/// A process that a test starts; killed at the latest when the object goes.
class Prozess {
public:
    Prozess(std::vector<std::string> befehl, const Umgebungswerte& werte = {});
    Prozess(const Prozess&) = delete;
    Prozess& operator=(const Prozess&) = delete;
    ~Prozess();

    pid_t nummer() const { return m_nummer; }
    /// False when it still runs after the time; it is killed then.
    bool warte(std::chrono::seconds höchstens = std::chrono::seconds(20));
    /// Waits for a line of its output that begins with the word.
    bool warteAuf(const std::string& wort, std::chrono::seconds höchstens = std::chrono::seconds(20));
    void töte();

    /// After `warte`: the exit status, or -1 for a process that a signal has ended.
    int status() const;
    int signal() const;
    bool hatSpeicherabbild() const;
    std::string ausgabe() const;
    /// Whether a line of the output begins with the word.
    bool sagt(const std::string& wort) const;

private:
    bool istZuEnde(bool wartet);

    std::filesystem::path m_ausgabe;
    pid_t m_nummer = -1;
    int m_ausgang = 0;
    bool m_beendet = false;
};

/// The driver on a folder.
std::vector<std::string> handlung(const std::filesystem::path& ordner, const std::string& was);
/// The values that put the preload library over the folder.
Umgebungswerte vorspann(const std::filesystem::path& ordner, const std::string& plan, Umgebungswerte weitere = {});
