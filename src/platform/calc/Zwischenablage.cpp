#include "platform/calc/Zwischenablage.h"

#include "platform/dateien/Dateien.h"

namespace {

constexpr std::string_view vorsilbe = "tolvek7-mappe-";

} // namespace

Zwischenablage::Zwischenablage(const std::string& dateiname)
    : m_ordner(std::make_unique<Wegwerfordner>(vorsilbe)), m_datei(m_ordner->pfad() / dateiname)
{
    Dateien().legeLeerAn(m_datei);
}

void Zwischenablage::räumeAuf()
{
    Wegwerfordner::räumeAuf(vorsilbe);
}
