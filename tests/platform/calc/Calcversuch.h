#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

/// A folder for one test that stands for the system's temporary folder, with a LibreOffice profile of its own.
class Calcversuch {
public:
    Calcversuch() : m_vorher(std::filesystem::temp_directory_path())
    {
        std::string muster = (m_vorher / "tolvek7-calctest-XXXXXX").string();
        if (mkdtemp(muster.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        ordner = muster;
        std::filesystem::create_directories(temp());
        setenv("TMPDIR", temp().c_str(), 1);
    }
    Calcversuch(const Calcversuch&) = delete;
    Calcversuch& operator=(const Calcversuch&) = delete;
    ~Calcversuch()
    {
        setenv("TMPDIR", m_vorher.c_str(), 1);
        std::error_code egal;
        std::filesystem::remove_all(ordner, egal);
    }

    std::filesystem::path temp() const { return ordner / "temp"; }
    std::string profil() const { return "-env:UserInstallation=file://" + (ordner / "profil").string(); }

    /// Writes a small program into the folder `bin`, which becomes the whole search path.
    void legeProgrammAn(const std::string& name, const std::string& skript) const
    {
        const auto bin = ordner / "bin";
        std::filesystem::create_directories(bin);
        std::ofstream(bin / name) << skript;
        std::filesystem::permissions(bin / name, std::filesystem::perms::owner_all);
    }

    std::filesystem::path ordner;

private:
    std::filesystem::path m_vorher;
};

/// Sets a variable of the environment for the time of a test.
class Umgebungsvariable {
public:
    Umgebungsvariable(const char* name, const std::string& wert) : m_name(name)
    {
        const char* vorher = std::getenv(name);
        m_vorher = vorher == nullptr ? "" : vorher;
        setenv(name, wert.c_str(), 1);
    }
    Umgebungsvariable(const Umgebungsvariable&) = delete;
    Umgebungsvariable& operator=(const Umgebungsvariable&) = delete;
    ~Umgebungsvariable() { setenv(m_name, m_vorher.c_str(), 1); }

private:
    const char* m_name;
    std::string m_vorher;
};

/// Runs the command line; its output.
inline std::string ausgabeVon(const std::string& befehl)
{
    FILE* strom = popen(befehl.c_str(), "r");
    if (strom == nullptr) {
        throw std::runtime_error("cannot run " + befehl);
    }
    std::string ausgabe;
    std::array<char, 4096> puffer{};
    while (const std::size_t länge = fread(puffer.data(), 1, puffer.size(), strom)) {
        ausgabe.append(puffer.data(), länge);
    }
    pclose(strom);
    return ausgabe;
}

inline std::string leseDatei(const std::filesystem::path& pfad)
{
    std::ifstream strom(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

/// Waits until the condition holds, at most so many seconds.
template <class F> bool warteBis(F bedingung, int sekunden)
{
    for (int i = 0; i < sekunden * 10; ++i) {
        if (bedingung()) {
            return true;
        }
        usleep(100'000);
    }
    return bedingung();
}
