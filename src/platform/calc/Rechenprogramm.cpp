#include "platform/calc/Rechenprogramm.h"

#include "platform/calc/Mappenschreiber.h"
#include "platform/calc/Zwischenablage.h"

#include <utility>

namespace {

constexpr auto dateiname = "Tolvek7.xlsx";

} // namespace

Rechenprogramm::Rechenprogramm(std::vector<std::string> zusätze) : m_zusätze(std::move(zusätze))
{
    Zwischenablage::räumeAuf();
}

Rechenprogramm::~Rechenprogramm() = default;

bool Rechenprogramm::istDa()
{
    return findeProgramm(erstesRechenprogramm.name) || findeProgrammFürXlsx();
}

bool Rechenprogramm::öffne(Arbeitsmappe& mappe, const Zwischendurch& zwischendurch)
{
    auto ablage = std::make_unique<Zwischenablage>(dateiname);
    schreibeXlsx(mappe, ablage->datei(), zwischendurch);
    if (const auto programm = findeProgramm(erstesRechenprogramm.name)) {
        std::vector<std::string> argumente = m_zusätze;
        argumente.emplace_back(erstesRechenprogramm.alsNeues);
        if (ablage->übergib(*programm, argumente)) {
            return true;
        }
    }
    if (const auto öffner = findeProgrammFürXlsx(); öffner && ablage->überlasse(*öffner)) {
        m_überlassene.push_back(std::move(ablage));
        return true;
    }
    return false;
}
