#include "export/Spaltentabelle.h"

#include "satz/Exportspalten.h"

#include <algorithm>

void trageFelderEin(std::vector<Exportspalte>& spalten, char blatt, const std::vector<Satzfeld>& satzfelder,
                    const std::function<Exportspalte(const Satzfeld& feld, int nummer)>& kodierung)
{
    std::vector<bool> belegt;
    int nummer = 0;
    for (const auto& feld : satzfelder) {
        ++nummer;
        if (feld.blatt != blatt) {
            continue;
        }
        const auto ort = static_cast<std::size_t>(feld.spalte - 1);
        spalten.resize(std::max(spalten.size(), ort + 1));
        belegt.resize(spalten.size());
        if (!belegt[ort]) {
            spalten[ort] = kodierung(feld, nummer);
            belegt[ort] = true;
        }
    }
}

Exportspalte& spaltenplatz(std::vector<Exportspalte>& spalten, int nummer)
{
    const auto ort = static_cast<std::size_t>(nummer - 1);
    spalten.resize(std::max(spalten.size(), ort + 1));
    return spalten[ort];
}

void trageAnfangEin(std::vector<Exportspalte>& spalten, const Exportspalte& kernID, const Exportspalte& betrID)
{
    spaltenplatz(spalten, exportspalte::tsnr) = {.kodierung = Kodierung::Tsnr};
    spaltenplatz(spalten, exportspalte::kernID) = kernID;
    spaltenplatz(spalten, exportspalte::betrID) = betrID;
}
