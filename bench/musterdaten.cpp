// musterdaten ORDNER --klienten N --episoden-je K --saat S
// writes the program folder of a made-up facility.

#include "app/muster/Musterdaten.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr auto aufruf = "Aufruf: musterdaten ORDNER [--klienten N] [--episoden-je K] [--saat S]\n";

/// True when the pair is an option of the program with a number that it can have.
bool lies(std::string_view name, std::string_view wert, Mustervorgabe& vorgabe)
{
    const auto zahl = leseGanzzahl32(wert);
    if (!zahl || *zahl < 0 || *zahl > 32767) {
        return false;
    }
    if (name == "--klienten") {
        vorgabe.klienten = *zahl;
    } else if (name == "--episoden-je") {
        vorgabe.episodenJe = *zahl;
    } else if (name == "--saat") {
        vorgabe.saat = static_cast<std::uint64_t>(*zahl);
    } else {
        return false;
    }
    return true;
}

} // namespace

int main(int anzahl, char** werte)
{
    Mustervorgabe vorgabe;
    bool gut = anzahl >= 2 && anzahl % 2 == 0;
    for (int i = 2; gut && i + 1 < anzahl; i += 2) {
        gut = lies(werte[i], werte[i + 1], vorgabe);
    }
    if (!gut) {
        std::fputs(aufruf, stderr);
        return 2;
    }
    try {
        schreibeProgrammordner(werte[1], erzeugeMusterdaten(vorgabe));
    } catch (const Laufzeitfehler& fehler) {
        std::fprintf(stderr, "%s\n", alsUtf8(fehler.text()).c_str());
        return 1;
    }
    return 0;
}
