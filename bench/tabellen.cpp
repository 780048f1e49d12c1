// The operations on the tables against the limit on the same data: counting the table's lines, or copying the
// tables that change with a flush to the disk.

#include "Messumgebung.h"

#include "app/moMain.h"
#include "platform/dateien/Zeilen.h"
#include "satz/moHelferlein.h"
#include "store/Niederschrift.h"
#include "store/Sicherungen.h"
#include "store/Vorgang.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>

namespace {

/// A started program on a facility.
struct Lauf {
    explicit Lauf(const Mustervorgabe& vorgabe) : umgebung(vorgabe) { programm.starte(); }

    Messumgebung umgebung;
    Programm programm{umgebung};

    const Bestand& bestand() { return programm.zustand().bestand; }
    const Pfade& pfade() { return programm.zustand().pfade; }
    void kopiere(std::span<const Tabelle> tabellen)
    {
        for (const auto tabelle : tabellen) {
            ::kopiere(umgebung.dateien(), pfade().von(tabelle), pfade().programm / "kopie.txt");
        }
    }
};

/// The large facility, built once for all measurements.
Lauf& lauf()
{
    static Lauf einer(großeEinrichtung);
    return einer;
}

const Bestand& bestand()
{
    return lauf().bestand();
}

void zähle()
{
    const auto inhalt = bestand().inhalt(Tabelle::Betr);
    benchmark::DoNotOptimize(zähleZeilen(inhalt->text()));
}

constexpr int letzterKlient = 10000;
constexpr int letzteBetreuung = 3;

void holen(benchmark::State& stand)
{
    lauf();
    messeVerhältnis(stand, 3, zähle,
                    [] { benchmark::DoNotOptimize(bestand().getBetrDS(letzterKlient, letzteBetreuung)); });
}

void höchste(benchmark::State& stand)
{
    lauf();
    messeVerhältnis(stand, 3, zähle, [] { benchmark::DoNotOptimize(bestand().höchsteBetrID(letzterKlient)); });
}

/// The working copy of an episode, as its opening has read it.
struct Arbeitskopie {
    int kernID;
    std::string kern, betr, diag;
};

Arbeitskopie öffne(const Bestand& ziel, int kernID)
{
    return {kernID, ziel.getKernDS(kernID), ziel.getBetrDS(kernID, 1), ziel.getDiagDS(kernID, 1)};
}

/// What OK on an episode writes: care, diagnosis, and the client with its state worked out anew.
void speichere(const Bestand& ziel, const Arbeitskopie& kopie, int betrID, bool istNeu)
{
    const auto nummer = std::to_string(betrID);
    Vorgang vorgang(ziel);
    if (istNeu) {
        vorgang.anfügeBetrDS(ersetzeFeld(kopie.betr, 2, nummer));
        vorgang.löscheDiagReste(kopie.kernID, betrID);
        vorgang.anfügeDiagDS(ersetzeFeld(kopie.diag, 2, nummer));
    } else {
        vorgang.ersetzeBetrDS(kopie.kernID, betrID, kopie.betr);
        vorgang.ersetzeDiagDS(kopie.kernID, betrID, kopie.diag);
    }
    const auto status = vorgang.betrStatusVon(std::to_string(kopie.kernID));
    vorgang.ersetzeKernDS(kopie.kernID, ersetzeFeld(kopie.kern, 3, status));
    vorgang.bestätige();
}

void kopiereDieDrei()
{
    lauf().kopiere(dieTabellen);
}

void kopiereAlleSechs()
{
    lauf().kopiere(alleSechs);
}

void geänderteBetreuung(benchmark::State& stand)
{
    const auto kopie = öffne(bestand(), letzterKlient);
    messeVerhältnis(stand, 1.3, kopiereDieDrei, [&] { speichere(bestand(), kopie, 1, false); });
}

void neueBetreuung(benchmark::State& stand)
{
    const auto kopie = öffne(bestand(), letzterKlient);
    static int betrID = letzteBetreuung;
    messeVerhältnis(stand, 1.3, kopiereDieDrei, [&] { speichere(bestand(), kopie, ++betrID, true); });
}

/// As the main menu deletes: each episode of its list, what the list doesn't show, the client.
void gelöschterKlient(benchmark::State& stand)
{
    constexpr int betreuungen = 10;
    constexpr int weitereBetreuungen = 100; // beyond those that other measurements add
    static int klient = letzterKlient;      // each client can be deleted once, however often the measurement is begun
    const auto bereiteVor = [&] {
        --klient;
        Vorgang vorgang(bestand());
        for (int i = 0; i < betreuungen; ++i) {
            const auto nummer = std::to_string(weitereBetreuungen + i);
            vorgang.anfügeBetrDS(ersetzeFeld(bestand().getBetrDS(klient, 1), 2, nummer));
            vorgang.anfügeDiagDS(ersetzeFeld(bestand().getDiagDS(klient, 1), 2, nummer));
        }
        vorgang.bestätige();
    };
    const auto lösche = [&] {
        Vorgang vorgang(bestand());
        for (int i = 0; i < betreuungen; ++i) {
            vorgang.löscheBetrDS(klient, weitereBetreuungen + i);
            vorgang.löscheDiagDS(klient, weitereBetreuungen + i);
        }
        vorgang.löscheAllesVon(klient);
        vorgang.löscheKernDS(klient);
        vorgang.bestätige();
    };
    Verhältnis verhältnis;
    for (auto _ : stand) {
        bereiteVor();
        verhältnis.grenze += stoppe(kopiereDieDrei);
        verhältnis.arbeit += stoppe(lösche);
    }
    stand.counters["Verhaeltnis"] = verhältnis.wert();
    stand.counters["erlaubt"] = 1.5;
}

/// Completing, file test, repairs, frame, main menu with its session backup. The backup of the start before differs,
/// so that it is set aside.
void start(benchmark::State& stand)
{
    Verhältnis verhältnis;
    const auto kopie = öffne(bestand(), 1);
    static int betrID = 1000;
    for (auto _ : stand) {
        speichere(bestand(), kopie, ++betrID, true);
        verhältnis.grenze += stoppe(kopiereAlleSechs);
        verhältnis.arbeit += stoppe([] { Programm(lauf().umgebung).starte(); });
    }
    stand.counters["Verhaeltnis"] = verhältnis.wert();
    stand.counters["erlaubt"] = 1.5;
}

/// The run is killed when the commit record lies there and no table is replaced yet.
class Abbruch : public Dateizugriff {
public:
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override
    {
        if (nach.extension() == ".txt" && nach.filename() != "Vorgang.txt") {
            throw Dateifehler("broken off");
        }
        Dateizugriff::benenneUm(von, nach);
    }
};

void wiederanlauf(benchmark::State& stand)
{
    Dateien abbrechende(std::make_unique<Abbruch>());
    const Bestandsmeldung stumm = [](std::string_view, Symbol) {};
    const Bestand abgebrochener(abbrechende, lauf().pfade(), stumm);
    const Bestand wiederangelaufener(lauf().umgebung.dateien(), lauf().pfade(), stumm);
    const auto kopie = öffne(bestand(), letzterKlient);
    Verhältnis verhältnis;
    for (auto _ : stand) {
        try {
            speichere(abgebrochener, kopie, 1, false);
        } catch (const UnvollendeterVorgang&) {
            // as wanted
        }
        verhältnis.grenze += stoppe(kopiereAlleSechs);
        verhältnis.arbeit += stoppe([&] { vollendeVorgang(wiederangelaufener); });
    }
    stand.counters["Verhaeltnis"] = verhältnis.wert();
    stand.counters["erlaubt"] = 1.5;
}

/// How the time of an OK grows from 3,000 to 90,000 episodes, as a power of the growth of copying the same tables.
void wachstum(benchmark::State& stand)
{
    constexpr int wiederholungen = 5;
    const auto zeitenBei = [](int klienten) {
        Lauf einer(Mustervorgabe{klienten, 3, 7});
        const auto kopie = öffne(einer.bestand(), klienten);
        Verhältnis beste{1e9, 1e9};
        for (int i = 0; i < wiederholungen; ++i) {
            beste.grenze = std::min(beste.grenze, stoppe([&] { einer.kopiere(dieTabellen); }));
            beste.arbeit = std::min(beste.arbeit, stoppe([&] { speichere(einer.bestand(), kopie, 1, false); }));
        }
        return beste;
    };
    double exponent = 0;
    for (auto _ : stand) {
        const auto klein = zeitenBei(1000);
        const auto groß = zeitenBei(30000);
        exponent = std::log(groß.arbeit / klein.arbeit) / std::log(groß.grenze / klein.grenze);
    }
    stand.counters["Exponent"] = exponent;
    stand.counters["erlaubt"] = 1.05;
}

} // namespace

BENCHMARK(holen)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(höchste)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(geänderteBetreuung)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(neueBetreuung)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(gelöschterKlient)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(start)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(8);
BENCHMARK(wiederanlauf)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(wachstum)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK_MAIN();
