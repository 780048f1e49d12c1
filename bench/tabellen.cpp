// The operations on the tables against the limit on the same data: counting the table's lines, or copying the
// table with a flush to the disk.

#include "Messumgebung.h"

#include "app/moMain.h"
#include "platform/dateien/Zeilen.h"
#include "store/Tabellen.h"

namespace {

/// A started program on the large facility, built once for all measurements.
struct Lauf {
    Messumgebung umgebung{großeEinrichtung};
    Programm programm{umgebung};

    Lauf() { programm.starte(); }
};

Lauf& lauf()
{
    static Lauf einer;
    return einer;
}

const Pfade& pfade()
{
    return lauf().programm.zustand().pfade;
}

void zähle()
{
    const auto inhalt = lauf().umgebung.dateien().lies(pfade().betrDat);
    benchmark::DoNotOptimize(zähleZeilen(inhalt->text()));
}

void kopiere()
{
    lauf().umgebung.dateien().kopiereÜber(pfade().betrDat, pfade().programm / "kopie.txt");
}

constexpr int letzterKlient = 10000;
constexpr int letzteBetreuung = 3;

void holen(benchmark::State& stand)
{
    lauf();
    messeVerhältnis(stand, 3, zähle, [] { benchmark::DoNotOptimize(getBetrDS(letzterKlient, letzteBetreuung)); });
}

void höchste(benchmark::State& stand)
{
    lauf();
    messeVerhältnis(stand, 3, zähle, [] { benchmark::DoNotOptimize(höchsteBetrID(letzterKlient)); });
}

void ersetzen(benchmark::State& stand)
{
    lauf();
    const auto satz = getBetrDS(letzterKlient, letzteBetreuung);
    messeVerhältnis(stand, 2, kopiere, [&] { ersetzeBetrDS(letzterKlient, letzteBetreuung, satz); });
}

void löschen(benchmark::State& stand)
{
    lauf();
    int klient = letzterKlient;
    messeVerhältnis(stand, 2, kopiere, [&] { löscheBetrDS(klient--, 1); });
}

} // namespace

BENCHMARK(holen)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(höchste)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ersetzen)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(löschen)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
