// What a person waits for, in the real windows on the offscreen platform: the return to the main menu on the large
// facility, the opening of each page of an episode, a click on an answer. Times are milliseconds; "erlaubt_ms" is
// what they may be.

#include "Messumgebung.h"

#include "app/moMain.h"
#include "platform/qt/QtOberflaeche.h"
#include "platform/qt/Stil.h"

#include <QApplication>
#include <QMainWindow>

#include <ctime>
#include <memory>

namespace {

/// A started program with its windows on the large facility.
struct Lauf {
    Messumgebung umgebung{großeEinrichtung};
    Programm programm{umgebung};
    QtOberfläche oberfläche{programm.zustand().ablauf, programm.zustand().folge, programm.zustand().rahmen, umgebung};

    Lauf()
    {
        programm.starte();
        zeichne();
    }

    Bildschirm& inGebrauch() { return *programm.zustand().folge.inGebrauch(); }

    /// A click with all that follows from it until it is drawn.
    void klicke(std::string_view name)
    {
        auto& element = *inGebrauch().finde(name);
        programm.zustand().ablauf.ereignis([&] { element.klicke(); });
        zeichne();
    }

    void zeichne()
    {
        oberfläche.ordne();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as the event loop does in between
        oberfläche.rahmenfenster()->grab();
    }
};

/// Gone before the application is.
std::unique_ptr<Lauf> einziger;

Lauf& lauf()
{
    if (!einziger) {
        einziger = std::make_unique<Lauf>();
    }
    return *einziger;
}

double prozessorzeit()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// Measures `gemessen`; `zurück` brings the screens back to where they were and does not count.
template <class G, class Z> void messe(benchmark::State& stand, double erlaubt, G gemessen, Z zurück)
{
    double summe = 0;
    for (auto _ : stand) {
        const double anfang = prozessorzeit();
        gemessen();
        summe += prozessorzeit() - anfang;
        zurück();
    }
    stand.counters["ms"] = 1000 * summe / static_cast<double>(stand.iterations());
    stand.counters["erlaubt_ms"] = erlaubt;
}

void rückkehrInsHauptmenü(benchmark::State& stand)
{
    lauf().klicke("cmdKlientenBearbeiten"_t);
    messe(
        stand, 150, [] { lauf().klicke("cmdExit"_t); }, [] { lauf().klicke("cmdKlientenBearbeiten"_t); });
    lauf().klicke("cmdExit"_t);
}

void öffneSeite(benchmark::State& stand, std::string_view knopf)
{
    lauf().klicke("cmdBetreuungBearbeiten"_t);
    messe(
        stand, 100, [&] { lauf().klicke(knopf); }, [] { lauf().klicke("cmdExit"_t); });
    lauf().klicke("cmdExit"_t);
}

void klickAufAntwort(benchmark::State& stand)
{
    lauf().klicke("cmdBetreuungBearbeiten"_t);
    lauf().klicke("cmdBetrA"_t);
    messe(
        stand, 10,
        [] {
            auto& antwort = *lauf().inGebrauch().finde("triJaNeinMasInt(5)"_t);
            lauf().programm.zustand().ablauf.ereignis([&] { antwort.klicke(); });
            QCoreApplication::processEvents();
        },
        [] {});
    lauf().klicke("cmdExit"_t);
    lauf().klicke("cmdExit"_t);
}

} // namespace

BENCHMARK(rückkehrInsHauptmenü)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(öffneSeite, frmBetrA, "cmdBetrA"_t)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(öffneSeite, frmBetrB, "cmdBetrB"_t)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(öffneSeite, frmBetrC, "cmdBetrC"_t)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(öffneSeite, frmBetrDiagnose, "cmdBetrDiagnose"_t)->Unit(benchmark::kMillisecond);
BENCHMARK(klickAufAntwort)->Unit(benchmark::kMillisecond);

int main(int anzahl, char** werte)
{
    QApplication programm(anzahl, werte);
    richteStilEin(programm);
    benchmark::Initialize(&anzahl, werte);
    benchmark::RunSpecifiedBenchmarks();
    einziger.reset();
    return 0;
}
