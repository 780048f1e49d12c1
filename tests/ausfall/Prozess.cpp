#include "ausfall/Prozess.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

fs::path neueAusgabedatei()
{
    std::string muster = (fs::temp_directory_path() / "tolvek7-ausgabe-XXXXXX").string();
    const int griff = mkstemp(muster.data());
    if (griff < 0) {
        throw std::runtime_error("no temporary file");
    }
    close(griff);
    return muster;
}

[[noreturn]] void werde(std::vector<std::string>& befehl, const Umgebungswerte& werte, const fs::path& ausgabe)
{
    const int ziel = open(ausgabe.c_str(), O_WRONLY | O_APPEND);
    dup2(ziel, STDOUT_FILENO);
    dup2(ziel, STDERR_FILENO);
    close(ziel);
    for (const auto& [name, wert] : werte) {
        setenv(name.c_str(), wert.c_str(), 1);
    }
    std::vector<char*> zeiger;
    for (auto& teil : befehl) {
        zeiger.push_back(teil.data());
    }
    zeiger.push_back(nullptr);
    execvp(zeiger[0], zeiger.data());
    _exit(127);
}

} // namespace

Prozess::Prozess(std::vector<std::string> befehl, const Umgebungswerte& werte) : m_ausgabe(neueAusgabedatei())
{
    m_nummer = fork();
    if (m_nummer < 0) {
        throw std::runtime_error("cannot fork");
    }
    if (m_nummer == 0) {
        werde(befehl, werte, m_ausgabe);
    }
}

Prozess::~Prozess()
{
    if (!m_beendet) {
        töte();
    }
    std::error_code egal;
    fs::remove(m_ausgabe, egal);
}

bool Prozess::istZuEnde(bool wartet)
{
    m_beendet = m_beendet || waitpid(m_nummer, &m_ausgang, wartet ? 0 : WNOHANG) == m_nummer;
    return m_beendet;
}

bool Prozess::warte(std::chrono::seconds höchstens)
{
    const auto frist = std::chrono::steady_clock::now() + höchstens;
    while (!istZuEnde(false)) {
        if (std::chrono::steady_clock::now() > frist) {
            töte();
            return false;
        }
        std::this_thread::sleep_for(500us);
    }
    return true;
}

bool Prozess::warteAuf(const std::string& wort, std::chrono::seconds höchstens)
{
    const auto frist = std::chrono::steady_clock::now() + höchstens;
    while (!sagt(wort)) {
        if (std::chrono::steady_clock::now() > frist || (istZuEnde(false) && !sagt(wort))) {
            return false;
        }
        std::this_thread::sleep_for(2ms);
    }
    return true;
}

void Prozess::töte()
{
    if (!m_beendet) {
        kill(m_nummer, SIGKILL);
        istZuEnde(true);
    }
}

int Prozess::status() const
{
    return WIFEXITED(m_ausgang) ? WEXITSTATUS(m_ausgang) : -1;
}

int Prozess::signal() const
{
    return WIFSIGNALED(m_ausgang) ? WTERMSIG(m_ausgang) : 0;
}

bool Prozess::hatSpeicherabbild() const
{
    return WIFSIGNALED(m_ausgang) && WCOREDUMP(m_ausgang);
}

std::string Prozess::ausgabe() const
{
    std::ifstream strom(m_ausgabe, std::ios::binary);
    std::ostringstream text;
    text << strom.rdbuf();
    return text.str();
}

bool Prozess::sagt(const std::string& wort) const
{
    std::istringstream text(ausgabe());
    for (std::string zeile; std::getline(text, zeile);) {
        if (zeile.starts_with(wort)) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> handlung(const fs::path& ordner, const std::string& was)
{
    return {AUSFALL_HANDLUNG, ordner.string(), was};
}

Umgebungswerte vorspann(const fs::path& ordner, const std::string& plan, Umgebungswerte weitere)
{
    weitere["LD_PRELOAD"] = AUSFALL_VORSPANN;
    weitere["AUSFALL_ORDNER"] = ordner.string();
    weitere["AUSFALL_PLAN"] = plan;
    return weitere;
}
