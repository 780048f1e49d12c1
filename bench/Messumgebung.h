#pragma once

#include "app/muster/Musterdaten.h"
#include "platform/dateien/Dateien.h"
#include "platform/umgebung/Umgebung.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <optional>

/// A world without people for measuring: boxes are answered with OK, nothing is drawn. The program folder is
/// a temporary one that holds the made-up facility and goes with the object.
class Messumgebung : public Umgebung {
public:
    explicit Messumgebung(const Mustervorgabe& vorgabe);
    ~Messumgebung() override;

    Datum heute() override { return {2020, 6, 15}; }
    std::filesystem::path programmordner() override { return m_ordner; }
    bool istErsteInstanz(const std::filesystem::path& /*datenordner*/) override { return true; }
    Dateien& dateien() override { return m_dateien; }
    Antwort zeigeMeldung(const Meldung& meldung) override
    {
        return meldung.knöpfe == Knöpfe::JaNein ? Antwort::Ja : Antwort::OK;
    }
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& /*wahl*/) override { return std::nullopt; }
    bool findeTabellenprogramm() override { return true; }
    bool übergibMappe(Arbeitsmappe& /*mappe*/, const std::function<void(double)>& /*fortschritt*/) override
    {
        return true;
    }
    Größe bildschirmgröße() override { return {28800, 16200}; }
    void zeichne() override {}
    void lasseEreignisseZu() override {}

private:
    std::filesystem::path m_ordner;
    Dateien m_dateien;
};

/// The facility on which the limits are stated: 10,000 clients with 30,000 episodes, about 40 MB of care records.
inline constexpr Mustervorgabe großeEinrichtung{10000, 3, 7};

/// A limit and an operation measured in turns on the same data: processor noise meets both. Prints the ratio.
struct Verhältnis {
    double grenze = 0;
    double arbeit = 0;
    double wert() const { return arbeit / grenze; }
};

/// Seconds that the call takes.
template <class F> double stoppe(F ruf)
{
    const auto anfang = std::chrono::steady_clock::now();
    ruf();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - anfang).count();
}

/// Runs limit and operation in turns as long as the benchmark goes on, and reports the ratio of their sums
/// beside what it may be.
template <class G, class A> void messeVerhältnis(benchmark::State& lauf, double erlaubt, G grenze, A arbeit)
{
    Verhältnis verhältnis;
    for (auto _ : lauf) {
        verhältnis.grenze += stoppe(grenze);
        verhältnis.arbeit += stoppe(arbeit);
    }
    lauf.counters["Verhaeltnis"] = verhältnis.wert();
    lauf.counters["erlaubt"] = erlaubt;
}
