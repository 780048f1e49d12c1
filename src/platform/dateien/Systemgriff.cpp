#include "platform/dateien/Systemgriff.h"

#include "platform/text/Text.h"

#include <algorithm>

std::string systemgrund(unsigned long fehler)
{
    for (const auto& grund : systemgründe()) {
        if (fehler != 0 && std::ranges::find(grund.fehler, fehler) != grund.fehler.end()) {
            return std::string(grund.text);
        }
    }
    return verbinde("Systemfehler "_t, std::to_string(fehler));
}

Systemgriff geprüft(Systemgriff griff)
{
    prüfeSystem(griff.istOffen());
    return griff;
}
