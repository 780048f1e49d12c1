#include "Befehlszeile.h"
#include "ablauf/Ausfuehrung.h"
#include "oberflaeche/OberflaecheOhne.h"
#include "sprache/Szenariodatei.h"

#ifdef SZENARIO_QT
#include "oberflaeche/OberflaecheQt.h"
#endif

#include "platform/umgebung/Prozess.h"

#include <clocale>
#include <iostream>
#include <memory>
#include <vector>

namespace {

using Oberflächen = std::vector<std::unique_ptr<Oberfläche>>;

std::unique_ptr<Oberfläche> erzeugeQt([[maybe_unused]] Oberflächenwahl wahl)
{
#ifdef SZENARIO_QT
    return erzeugeOberflächeQt();
#else
    if (wahl == Oberflächenwahl::Qt) {
        throw Aufruffehler("dieser Bau hat die Oberfläche qt nicht");
    }
    std::cerr << "Dieser Bau hat nur die Oberfläche ohne.\n";
    return nullptr;
#endif
}

Oberflächen erzeugeOberflächen(Oberflächenwahl wahl)
{
    Oberflächen oberflächen;
    if (wahl != Oberflächenwahl::Qt) {
        oberflächen.push_back(std::make_unique<OberflächeOhne>());
    }
    if (wahl != Oberflächenwahl::Ohne) {
        oberflächen.push_back(erzeugeQt(wahl));
    }
    std::erase(oberflächen, nullptr);
    return oberflächen;
}

struct Ergebnis {
    int bestanden = 0;
    int gescheitert = 0;
    bool unlesbar = false;
};

void melde(const std::string& datei, std::size_t zeile, const std::string& text)
{
    std::cout << "FEHLER " << datei << ':' << zeile << ": " << text << std::endl;
}

/// Runs the scenario on one surface after the other, up to the first failure.
bool besteht(const Szenario& szenario, const Oberflächen& oberflächen)
{
    for (const auto& oberfläche : oberflächen) {
        if (const auto fehlschlag = führeAus(szenario, *oberfläche)) {
            melde(pfadAlsUtf8(szenario.pfad), fehlschlag->zeile,
                  fehlschlag->text + " (Oberfläche " + std::string(oberfläche->name()) + ")");
            return false;
        }
    }
    std::cout << "ok " << pfadAlsUtf8(szenario.pfad) << std::endl;
    return true;
}

void führeAus(const std::filesystem::path& datei, const Oberflächen& oberflächen, Ergebnis& ergebnis)
{
    try {
        const Szenario szenario = liesSzenario(datei);
        ++(besteht(szenario, oberflächen) ? ergebnis.bestanden : ergebnis.gescheitert);
    } catch (const Sprachfehler& fehler) {
        ergebnis.unlesbar = true;
        melde(pfadAlsUtf8(datei), fehler.zeile(), std::string("erwartet ") + fehler.what());
    }
}

int führeAlleAus(const Befehlszeile& befehlszeile)
{
    const auto dateien = findeSzenarien(befehlszeile);
    const Oberflächen oberflächen = erzeugeOberflächen(befehlszeile.oberfläche);
    Ergebnis ergebnis;
    for (const auto& datei : dateien) {
        führeAus(datei, oberflächen, ergebnis);
    }
    std::cout << ergebnis.bestanden << " passed, " << ergebnis.gescheitert << " failed" << std::endl;
    if (ergebnis.unlesbar) {
        return 2;
    }
    return ergebnis.gescheitert > 0 ? 1 : 0;
}

/// UTF-8 on every system.
std::vector<std::string> alsTexte(const std::vector<std::filesystem::path>& argumente)
{
    std::vector<std::string> texte;
    for (const auto& argument : argumente) {
        texte.push_back(pfadAlsUtf8(argument));
    }
    return texte;
}

} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, ""); // on both surfaces alike, as the windows' library does it
    try {
        return führeAlleAus(liesBefehlszeile(alsTexte(argumente(argc, argv))));
    } catch (const Aufruffehler& fehler) {
        std::cerr << fehler.what()
                  << "\nszenario [--oberfläche=ohne|qt|beide] [--nur=WORT] [--teil=N/ALLE] DATEI-ODER-ORDNER ...\n";
        return 2;
    }
}
