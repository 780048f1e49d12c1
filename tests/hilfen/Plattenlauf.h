#pragma once

#include "hilfen/Platte.h"
#include "hilfen/Schreibhandlungen.h"
#include "hilfen/Testumgebung.h"

#include <functional>
#include <string>
#include <vector>

/// Runs of the program on a disk in memory, and the cases in which its actions are broken off.

/// The world of such a run. Boxes are answered with their confirming button.
class Plattenumgebung : public Testumgebung {
public:
    explicit Plattenumgebung(Platte& platte);
    Antwort zeigeMeldung(const Meldung& meldung) override;
};

/// A program run on a disk in memory; the disk outlives it.
class Plattenlauf {
public:
    explicit Plattenlauf(Platte& platte) : umgebung(platte), programm(umgebung), hand(programm) {}

    Plattenumgebung umgebung;
    Programm programm;
    Hand hand;

    /// Starts; false when the program has ended by it.
    bool starte();
    bool läuft() { return programm.zustand().ablauf.läuft(); }
    bool istUnvollendet() { return absturz().find("chsten Start vollendet") != std::string::npos; }
    const std::string& absturz() { return programm.zustand().ablauf.absturz(); }
};

struct Ausfallfall {
    std::string name;
    /// Lays out the disk.
    void (*richteEin)(Platte&, const Pfade&);
    /// Nothing: the action is the start itself.
    const Schreibhandlung* handlung = nullptr;
};

const std::vector<Ausfallfall>& ausfallfälle();
void PrintTo(const Ausfallfall& fall, std::ostream* strom);

/// The program folder of all runs on a disk in memory.
std::filesystem::path plattenordner();
