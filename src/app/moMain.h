#pragma once

#include "app/MDIfrm.h"
#include "app/moExtras.h"
#include "clients/frmHauptmenue.h"
#include "zustand/Zustand.h"

#include <memory>

/// With this the title begins while the records are made up.
inline constexpr auto mustermarke = "MUSTER"_t;

/// A run of the program from start to end: its state, the frame and the main menu. `main.cpp` makes one for
/// people, the scenario runner one for each start.
class Programm {
public:
    explicit Programm(Umgebung& umgebung);
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    /// Runs Sub Main as the first event; afterwards the events of the screens carry on, as long as
    /// `zustand().ablauf.läuft()`.
    void starte();
    Zustand& zustand() { return m_zustand; }

private:
    void Main();
    void initialisiere();

    Zustand m_zustand;
    Zustandsplatz m_platz;
    moExtras m_extras;
    MDIfrm m_rahmen;
    std::unique_ptr<frmHauptmenü> m_hauptmenü;
};

/// The file test: creates the data folder and the six empty files when all three tables are missing, and the
/// settings file when that is missing. One or two missing tables are left alone: they are no first start.
/// Laufzeitfehler when the program folder can't be written.
void prüfeDateien();
