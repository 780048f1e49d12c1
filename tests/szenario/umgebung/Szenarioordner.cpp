#include "umgebung/Szenarioordner.h"

#include <cstdlib>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

namespace {

/// Small and short-lived files are best kept in memory, where the system offers that.
std::filesystem::path ablage()
{
    const std::filesystem::path imSpeicher = "/dev/shm";
    const bool gewählt = std::getenv("TMPDIR") != nullptr;
    return std::filesystem::canonical(
        !gewählt && std::filesystem::is_directory(imSpeicher) ? imSpeicher : std::filesystem::temp_directory_path());
}

} // namespace

Szenarioordner::Szenarioordner()
{
    static std::mt19937_64 zufall{std::random_device{}()};
    constexpr int versuche = 100;
    for (int i = 0; i < versuche; ++i) {
        m_pfad = ablage() / ("szenario-" + std::to_string(zufall()));
        if (std::filesystem::create_directory(m_pfad)) {
            return;
        }
    }
    throw std::runtime_error("kein Ordner für das Szenario");
}

Szenarioordner::~Szenarioordner()
{
    std::error_code fehler;
    std::filesystem::remove_all(m_pfad, fehler);
}
