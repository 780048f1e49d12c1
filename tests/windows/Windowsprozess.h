#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// A process of the driver (handlung.cpp) on a folder; killed at the latest when the object goes.
class Windowsprozess {
public:
    Windowsprozess(const std::filesystem::path& ordner, const std::string& handlung, int stelle = 0,
                   const std::filesystem::path& treiber = TOLVEK_HANDLUNG);
    Windowsprozess(const Windowsprozess&) = delete;
    Windowsprozess& operator=(const Windowsprozess&) = delete;
    ~Windowsprozess();

    /// Waits for the end; the exit status, -1 for one that has to be killed since it does not come.
    int warte();
    /// Waits for a line of its output that begins with the word.
    bool warteAuf(const std::string& wort) const;
    void töte();
    /// What it has said so far.
    std::string ausgabe() const;

private:
    std::filesystem::path m_ausgabe;
    void* m_prozess = nullptr;
};
