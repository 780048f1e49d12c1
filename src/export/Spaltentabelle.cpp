#include "export/Spaltentabelle.h"

#include "satz/Exportspalten.h"

#include <algorithm>

void trageFelderEin(std::vector<Exportspalte>& spalten, char blatt, const std::vector<Satzfeld>& satzfelder,
                    Exportspalte (*spalteAus)(const Satzfeld& feld, int nummer))
{
    for (int nummer = static_cast<int>(satzfelder.size()); nummer > 0; --nummer) { // backwards: the first one stays
        const auto& feld = feldAus(satzfelder, nummer);
        if (feld.blatt == blatt) {
            spaltenplatz(spalten, feld.spalte) = spalteAus(feld, nummer);
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
    spaltenplatz(spalten, exportspalte::tsnr) = {.kodierung = &Zeilenbauer::tsnr};
    spaltenplatz(spalten, exportspalte::kernID) = kernID;
    spaltenplatz(spalten, exportspalte::betrID) = betrID;
}
