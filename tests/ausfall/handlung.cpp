// One run of the program without windows, with the real files, the real lock and the screens' elements, for the fault
// tests:
//
//   handlung ORDNER HANDLUNG
//
// It says on the standard output what happens: "HAUPTMENÜ" when the main menu is there, "MELDUNG …" for each box
// (answered with its confirming button), "FERTIG" when the action has come back. The exit status is the program's.

#include "ausfall/Handlungsumgebung.h"
#include "hilfen/Schreibhandlungen.h"
#include "platform/umgebung/Prozessschutz.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include <dlfcn.h>
#include <unistd.h>

namespace {

/// From here on the calls of the action count.
void zähleAbHier()
{
    if (auto* beginne = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "ausfall_beginne"))) {
        beginne();
    }
}

/// Another hand cuts the tables to nothing while the export reads them.
void exportiereAusGekürzten(Hand& hand, Handlungsumgebung& umgebung)
{
    bool gekürzt = false;
    umgebung.beiZeichnen = [&] {
        if (!gekürzt) {
            gekürzt = true;
            for (const auto tabelle : dieTabellen) {
                if (::truncate(zustand().pfade.von(tabelle).c_str(), 0) != 0) {
                    std::perror("truncate");
                }
            }
            sage("GEKÜRZT");
        }
    };
    hand.klicke("mnExport"_t);
    hand.tippeZahl("comboJahr"_t, "2007"_t);
    hand.klicke("cmdOK"_t);
}

void schreibe(const Schreibhandlung& handlung, Hand& hand)
{
    handlung.bereiteVor(hand);
    zähleAbHier();
    handlung.handle(hand);
}

/// False for a name that is none.
bool tue(std::string_view name, Hand& hand, Handlungsumgebung& umgebung)
{
    const auto handlung = std::ranges::find(schreibhandlungen(), name, &Schreibhandlung::name);
    if (handlung != schreibhandlungen().end()) {
        schreibe(*handlung, hand);
    } else if (name == "mappe") {
        hand.klicke("mnExcel"_t);
    } else if (name == "export-gekuerzt") {
        exportiereAusGekürzten(hand, umgebung);
    } else if (name == "bleibe") {
        sage("BLEIBT");
        ::pause();
    } else if (name == "absturz") {
        std::abort();
    } else {
        return name == "start";
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        return 2;
    }
    verhindereSpeicherabbilder();
    Handlungsumgebung umgebung(argv[1], std::make_unique<Dateizugriff>());
    return starteUndTue(
        umgebung, [&](Hand& hand) { return tue(argv[2], hand, umgebung); },
        [](bool läuftNoch) {
            if (läuftNoch) {
                sage("FERTIG");
            }
        });
}
