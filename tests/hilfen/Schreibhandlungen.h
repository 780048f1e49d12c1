#pragma once

#include "app/moMain.h"
#include "hilfen/Platte.h"
#include "hilfen/Testumgebung.h"

#include <functional>
#include <string>
#include <vector>

/// The actions that write tables, done as a person does them: through the elements of the screens. Each on a disk in
/// memory that is laid out before.

/// A program run on a disk in memory; the disk outlives it.
class Plattenlauf {
public:
    explicit Plattenlauf(Platte& platte);

    Testumgebung umgebung;
    Programm programm;

    /// Starts; false when the program has ended by it.
    bool starte();
    bool läuft() { return programm.zustand().ablauf.läuft(); }
    bool istUnvollendet() { return absturz().find("chsten Start vollendet") != std::string::npos; }
    const std::string& absturz() { return programm.zustand().ablauf.absturz(); }

    /// Presses the button of the screen.
    void klicke(std::string_view bildschirm, std::string_view knopf);
    void klickeZeile(std::string_view liste, std::size_t zeile);
    void tippe(std::string_view bildschirm, std::string_view feld, std::string_view text);
    /// The answer to the next box with a choice.
    void antworte(Antwort antwort) { umgebung.antworten.push_back(antwort); }

private:
    Element& element(std::string_view bildschirm, std::string_view name);
};

struct Handlung {
    std::string name;
    /// Lays out the disk.
    std::function<void(Platte&, const Pfade&)> richteEin;
    /// Steps up to the moment before the action; then the action itself. Both after the start.
    std::function<void(Plattenlauf&)> bereiteVor;
    std::function<void(Plattenlauf&)> handle;
    /// The action is the start itself: `bereiteVor` and `handle` do nothing then.
    bool istStart = false;
};

const std::vector<Handlung>& handlungen();
void PrintTo(const Handlung& handlung, std::ostream* strom);

/// The program folder of all runs on a disk in memory.
std::filesystem::path plattenordner();
