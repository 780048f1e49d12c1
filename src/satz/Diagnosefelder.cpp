#include "platform/text/Text.h"
#include "satz/Feldreihe.h"

// The groups have no names of their own per field; the headers build theirs from the catalogue. Columns of
// the diagnosis row: six for each of the 20 substances, four for each of the groups 21 to 28, two for the
// eating disorders; age of first consumption and code of the main diagnosis are one column each for all.

namespace {

constexpr int substanzen = 20;
constexpr int missbrauchUndGlücksspiel = 8;
constexpr int spaltenJeSubstanz = 6;
constexpr int ersteSubstanzspalte = 4;
constexpr int spaltenJeMissbrauch = 4;
constexpr int ersteMissbrauchspalte = 125;
constexpr Spalten erstkonsumspalte{'D', 160, true};
constexpr Spalten hauptdiagnosespalte{'D', 159, true};

Feldreihe namenlos(Spalten spalten, Feldart art, Werteliste werte = {})
{
    return {{}, einzeln, spalten, art, werte, {}};
}

void hängeSubstanzAn(std::vector<Feldreihe>& reihen, int spalte)
{
    using enum Feldart;
    reihen.push_back(namenlos({'D', spalte}, option, werte::konsumart));
    reihen.push_back(namenlos({'D', spalte + 1}, zahl));
    reihen.push_back(namenlos({'D', spalte + 2}, zahl));
    reihen.push_back(namenlos({'D', spalte + 3}, option, werte::icdZusatz));
    reihen.push_back(namenlos({'D', spalte + 4}, zahl));
    reihen.push_back(namenlos({'D', spalte + 5}, option, werte::kurz));
    reihen.push_back(namenlos(erstkonsumspalte, hdAlter));
    reihen.push_back(namenlos(hauptdiagnosespalte, icd0000));
}

void hängeMissbrauchAn(std::vector<Feldreihe>& reihen, int spalte)
{
    using enum Feldart;
    reihen.push_back(namenlos(ohneSpalte, leer));
    reihen.push_back(namenlos({'D', spalte}, zahl));
    reihen.push_back(namenlos({'D', spalte + 1}, zahl));
    reihen.push_back(namenlos({'D', spalte + 2}, option, werte::kurz));
    reihen.push_back(namenlos({'D', spalte + 3}, zahl));
    reihen.push_back(namenlos(ohneSpalte, leer));
    reihen.push_back(namenlos(erstkonsumspalte, hdAlter));
    reihen.push_back(namenlos(hauptdiagnosespalte, icd0000));
}

void hängeEssstörungAn(std::vector<Feldreihe>& reihen)
{
    using enum Feldart;
    reihen.push_back(namenlos(ohneSpalte, leer));
    reihen.push_back(namenlos(ohneSpalte, leer));
    reihen.push_back(namenlos(ohneSpalte, leer));
    reihen.push_back(namenlos({'D', 157}, option, werte::essstörung));
    reihen.push_back(namenlos({'D', 158}, zahl));
    reihen.push_back(namenlos(ohneSpalte, leer));
    reihen.push_back(namenlos(erstkonsumspalte, hdAlter));
    reihen.push_back(namenlos(hauptdiagnosespalte, icd0000));
}

} // namespace

/// The diagnosis record.
std::vector<Feldreihe> diagnosereihen()
{
    using enum Feldart;
    std::vector<Feldreihe> reihen;
    reihen.push_back({"kernID"_t, einzeln, ohneSpalte, idKern, {}, ""_t});
    reihen.push_back({"betrID"_t, einzeln, ohneSpalte, idBetr, {}, ""_t});
    for (int i = 0; i < substanzen; ++i) {
        hängeSubstanzAn(reihen, ersteSubstanzspalte + i * spaltenJeSubstanz);
    }
    for (int i = 0; i < missbrauchUndGlücksspiel; ++i) {
        hängeMissbrauchAn(reihen, ersteMissbrauchspalte + i * spaltenJeMissbrauch);
    }
    hängeEssstörungAn(reihen);
    reihen.push_back({"icdpsy"_t, {1, 4}, {'D', 162}, icdPsy, {}, ""_t});
    reihen.push_back({"icdneu"_t, {1, 4}, {'D', 166}, icdNeu, {}, ""_t});
    reihen.push_back({"icdand"_t, {1, 4}, {'D', 170}, text, {}, ""_t});
    reihen.push_back(namenlos(ohneSpalte, leer)); // bit field of the groups
    return reihen;
}
