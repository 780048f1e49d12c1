// The import of an older facility against copying every file that the run writes, each as often as it is written.

#include "Messumgebung.h"

#include "app/moMain.h"
#include "hilfen/Altdaten.h"
#include "import/Importlauf.h"

#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr Mustervorgabe leer{0, 0, 1};
constexpr int klienten = 10000;
constexpr int betreuungenJeKlient = 3;

void schreibe(Dateien& dateien, const fs::path& pfad, const std::vector<std::string>& zeilen)
{
    const auto aus = dateien.schreibeNeu(pfad);
    for (const auto& zeile : zeilen) {
        aus->zeile(zeile);
    }
    aus->schließe();
}

class Lauf {
public:
    Lauf()
    {
        m_programm.starte();
        for (const auto* ordner : {"alt", "geschrieben"}) {
            dateien().legeOrdnerAn(wurzel() / ordner);
        }
        for (const auto* name : {"eKernAnweisung.txt", "eDiagAnweisung.txt"}) {
            kopiere(dateien(), fs::path(TOLVEK_QUELLEN) / "anweisungen" / name, wurzel() / name);
        }
        const auto alt = erzeugeAltdaten(klienten, betreuungenJeKlient, 7);
        schreibe(dateien(), kernAlt(), alt.klienten);
        schreibe(dateien(), betreuungenAlt(), alt.betreuungen);
        importiere(true);
    }

    /// With `merke` the files of the work folder are kept for the comparison.
    void importiere(bool merke = false)
    {
        const auto& stand = zustand();
        Importlauf lauf({stand.bestand, stand.pfade.programm, stand.umgebung.installation(), stand.pfade.importListe},
                        kernAlt(), betreuungenAlt());
        lauf.beiSchritt = [](std::string_view, int) {};
        lauf.nachSchritt = [&] {
            if (merke) {
                merkeGeschriebene();
            }
        };
        benchmark::DoNotOptimize(lauf.führeAus());
    }

    void kopiereGeschriebene()
    {
        const auto ordner = wurzel() / "geschrieben";
        for (const auto& name : dateien().dateienIn(ordner)) {
            for (int i = 0; i < wieOft(name); ++i) {
                kopiere(dateien(), ordner / name, wurzel() / "kopie.txt");
            }
        }
    }

private:
    Dateien& dateien() { return m_umgebung.dateien(); }
    fs::path wurzel() { return m_umgebung.programmordner(); }
    fs::path kernAlt() { return wurzel() / "alt" / "kernDat.txt"; }
    fs::path betreuungenAlt() { return wurzel() / "alt" / "betreuungenDat.txt"; }

    void merkeGeschriebene()
    {
        const auto arbeit = wurzel() / "importDummyVerz";
        for (const auto& name : dateien().dateienIn(arbeit)) {
            kopiere(dateien(), arbeit / name, wurzel() / "geschrieben" / name);
        }
    }

    /// The tables are written by stage 4 and over the live ones; between that the episodes without duplicates and with
    /// their mark, the diagnoses without duplicates, the clients with their status.
    static int wieOft(const fs::path& name)
    {
        if (name == "BetrDat.txt") {
            return 4;
        }
        return name == "KernDat.txt" || name == "DiagDat.txt" ? 3 : 1;
    }

    Messumgebung m_umgebung{leer};
    Programm m_programm{m_umgebung};
};

Lauf& lauf()
{
    static Lauf einer;
    return einer;
}

void importiereEinrichtung(benchmark::State& stand)
{
    lauf();
    messeVerhältnis(
        stand, 20, [] { lauf().kopiereGeschriebene(); }, [] { lauf().importiere(); });
}

} // namespace

BENCHMARK(importiereEinrichtung)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
