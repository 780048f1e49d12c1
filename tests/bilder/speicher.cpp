// speicher [GÄNGE [KNOPF]]: opens a page of an episode (page A, or the one behind the button) and closes it so many
// times in the real widgets, after a while of warming up, and measures how much more memory is in use afterwards. Exit
// status 1 from a kilobyte a time on, which is a megabyte in a thousand.

#include "Rundgang.h"
#include "oberflaeche/OberflaecheQt.h"

#include <malloc.h>

#include <cstdio>
#include <string>

namespace {

constexpr int gängeZumWarmwerden = 25;
constexpr double höchstensJeGang = 1024;

/// The way to the care main page, and from there to the page and back.
std::string weg(int gänge, const std::string& knopf)
{
    const auto gehe = [&knopf](int wieOft) {
        std::string text;
        for (int i = 0; i < wieOft; ++i) {
            text += "klicke " + knopf + "\nklicke cmdOK\n";
        }
        return text;
    };
    return "klient 1 Nachname=Adler\nbetreuung 1 1 01.02.2006 01.02.2007\ndiagnose 1 1\nstarte\nklicke "
           "cmdBetreuungBearbeiten\n" +
           gehe(gängeZumWarmwerden) + "# bild vorher\n" + gehe(gänge) +
           "# bild nachher\nerwarte bildschirm frmBetreuungA\n";
}

double belegt()
{
    const auto stand = mallinfo2();
    return static_cast<double>(stand.uordblks) + static_cast<double>(stand.hblkhd);
}

} // namespace

int main(int anzahl, char** werte)
{
    const int gänge = anzahl > 1 ? std::stoi(werte[1]) : 200;
    const std::string knopf = anzahl > 2 ? werte[2] : "cmdBetrA";
    const auto oberfläche = erzeugeOberflächeQt();
    double vorher = 0;
    double nachher = 0;
    const auto fehlschlag = Rundgang::ausText(weg(gänge, knopf)).gehe(*oberfläche, [&](const std::string& name) {
        (name == "vorher" ? vorher : nachher) = belegt();
    });
    if (!fehlschlag.empty()) {
        std::printf("%s\n", fehlschlag.c_str());
        return 1;
    }
    std::printf("%d round trips: %.0f bytes more, %.1f a trip\n", gänge, nachher - vorher, (nachher - vorher) / gänge);
    return vorher > 0 && nachher - vorher < höchstensJeGang * gänge ? 0 : 1;
}
