#include "platform/calc/Rechenprogramm.h"

#include "platform/calc/Mappenschreiber.h"
#include "platform/calc/Zwischenablage.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <utility>

namespace {

constexpr auto dateiname = "Tolvek7.xlsx";
constexpr auto libreOffice = "soffice";
constexpr auto desktopÖffner = "xdg-open";

} // namespace

Rechenprogramm::Rechenprogramm(std::vector<std::string> zusätze) : m_zusätze(std::move(zusätze))
{
    Zwischenablage::räumeAuf();
}

Rechenprogramm::~Rechenprogramm() = default;

bool Rechenprogramm::istDa()
{
    return findeProgramm(libreOffice) || (findeProgramm(desktopÖffner) && kenntProgrammFürXlsx());
}

void Rechenprogramm::öffne(Arbeitsmappe& mappe, const Zwischendurch& zwischendurch)
{
    auto ablage = std::make_unique<Zwischenablage>(dateiname);
    schreibeXlsx(mappe, ablage->datei(), zwischendurch);
    if (const auto programm = findeProgramm(libreOffice)) {
        std::vector<std::string> argumente = m_zusätze;
        argumente.emplace_back("-n");
        ablage->übergib(*programm, argumente);
    } else if (const auto öffner = findeProgramm(desktopÖffner)) {
        ablage->überlasse(*öffner, {});
        m_überlassene.push_back(std::move(ablage));
    } else {
        throw Laufzeitfehler(std::string("Das Tabellenprogramm kann nicht gestartet werden: es ist keines mehr da"_t));
    }
}
