#include "Messumgebung.h"

#include <random>
#include <string>

namespace fs = std::filesystem;

Messumgebung::Messumgebung(const Mustervorgabe& vorgabe)
    : m_ordner(fs::temp_directory_path() / ("tolvek7-messung-" + std::to_string(std::random_device()())))
{
    schreibeProgrammordner(m_ordner, erzeugeMusterdaten(vorgabe));
}

Messumgebung::~Messumgebung()
{
    std::error_code egal;
    fs::remove_all(m_ordner, egal);
}
