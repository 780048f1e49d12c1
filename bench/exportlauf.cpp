// The export of a year against copying the three tables once.

#include "Messumgebung.h"

#include "app/moMain.h"
#include "export/Exportlauf.h"

namespace {

struct Lauf {
    Messumgebung umgebung{großeEinrichtung};
    Programm programm{umgebung};

    Lauf()
    {
        programm.starte();
        umgebung.dateien().legeOrdnerAn(umgebung.programmordner() / "Exporte");
    }
};

Lauf& lauf()
{
    static Lauf einer;
    return einer;
}

void kopiereTabellen()
{
    const auto& pfade = lauf().programm.zustand().pfade;
    for (const auto* tabelle : {&pfade.kernDat, &pfade.betrDat, &pfade.diagDat}) {
        kopiere(lauf().umgebung.dateien(), *tabelle, pfade.programm / "kopie.txt");
    }
}

void exportiereJahr(benchmark::State& stand)
{
    lauf();
    constexpr int jahr = 2010;
    messeVerhältnis(stand, 6, kopiereTabellen, [] {
        Exportlauf export_(zustand().bestand, jahr, lauf().umgebung.programmordner() / "Exporte");
        export_.beiKlient = [](std::int32_t) {};
        benchmark::DoNotOptimize(export_.führeAus());
    });
}

} // namespace

BENCHMARK(exportiereJahr)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
