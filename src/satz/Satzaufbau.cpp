#include "satz/Satzaufbau.h"

#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"

#include <algorithm>

namespace {

std::string verbindeVorgaben(const std::vector<Satzfeld>& felder)
{
    std::string satz;
    for (const auto& feld : felder) {
        if (&feld != &felder.front()) {
            satz.push_back(trenner);
        }
        satz.append(feld.vorgabe);
    }
    return satz;
}

} // namespace

const std::vector<Satzfeld>& klientenfelder()
{
    static const std::vector<Satzfeld> felder = entfalte(kliententabelle::reihen);
    return felder;
}

const std::vector<Satzfeld>& betreuungsfelder()
{
    static const std::vector<Satzfeld> felder = entfalte(betreuungstabelle::reihen);
    return felder;
}

const std::vector<Satzfeld>& diagnosefelder()
{
    static const std::vector<Satzfeld> felder = entfalte(diagnosereihen());
    return felder;
}

int betreuungsfeld(std::string_view name)
{
    const auto& felder = betreuungsfelder();
    const auto ort = std::ranges::find(felder, name, &Satzfeld::name);
    return ort == felder.end() ? 0 : static_cast<int>(ort - felder.begin()) + 1;
}

std::string erstelleDefaultKernDS()
{
    // a delimiter too many: positions of new records have always been counted to 12, the twelfth is never read
    return verbindeVorgaben(klientenfelder()) + trenner;
}

std::string erstelleDefaultBetrDS()
{
    return verbindeVorgaben(betreuungsfelder());
}

std::string erstelleDefaultDiagDS()
{
    return verbindeVorgaben(diagnosefelder());
}
