#pragma once

#include "platform/bildschirm/Ablauf.h"
#include "platform/bildschirm/Bildschirmfolge.h"
#include "platform/bildschirm/Rahmen.h"
#include "platform/text/Ressourcen.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Umgebung.h"
#include "store/Bestand.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

/// The absolute paths of a run, all below the program folder; those of the store are its own.
struct Pfade : Bestandspfade {
    std::filesystem::path programm;    ///< the program folder itself
    std::filesystem::path ini;         ///< the settings
    std::filesystem::path dummyIni;    ///< their next version, while they are written
    std::filesystem::path importListe; ///< what the import has taken over
};

/// The paths of a run in the program folder.
Pfade bildePfade(const std::filesystem::path& programmordner);

/// The working copy of the one care episode in flight. The care record is cut into one piece per page; each
/// piece is text, its fields in order, each followed by the delimiter (also the last one). Nothing of it
/// reaches the tables before the care main page's OK.
struct Arbeitskopie {
    std::string aktKernDS;   ///< client record as read at opening
    std::string aktBetrDS;   ///< care record as read at opening, or the default
    std::string aktDiagDS;   ///< diagnosis record as read at opening, or the default
    std::string DSBetrHaupt; ///< care fields 5 to 24
    std::string DSBetrA;     ///< care fields 25 to 104
    std::string DSBetrB;     ///< care fields 105 to 117
    std::string DSBetrC;     ///< care fields 118 to 149
    std::string DSBetrDiag;  ///< care fields 150 to 163
    std::string DSBetrE;     ///< care fields 164 to 191
    std::string DSDiag;      ///< diagnosis fields 3 to 247
    std::string betrBeg;     ///< begin in flight, TT.MM.JJJJ
    std::string betrEnd;     ///< end in flight, TT.MM.JJJJ or "offen"
};

/// The state of a program run, filled once at start and read by all.
class Zustand {
public:
    explicit Zustand(Umgebung& umgebungDesLaufs);
    Zustand(const Zustand&) = delete;
    Zustand& operator=(const Zustand&) = delete;

    Umgebung& umgebung;
    Bildschirmfolge folge;
    Rahmen rahmen;
    Ablauf ablauf;
    Ressourcen ressourcen;
    /// Opens the memo over the caller. Set by the frame, since the memo form stands above the pages that open it.
    std::function<void(Bildschirm& rufer, bool zeigeMemoB)> zeigeMemo;

    /// Title of every message box and of the frame, "Tolvek7 v7.0.0"; empty before initialisation.
    std::string titel;
    Pfade pfade;
    /// The store's door: its boxes come under the program's title.
    Bestandsmeldung bestandsmeldung;
    Bestand bestand;
    std::string defaultKernDS;
    std::string defaultBetrDS;
    std::string defaultDiagDS;
    std::int16_t anzahlKernFelder = 0;
    std::int16_t anzahlBetrFelder = 0;

    Arbeitskopie arbeitskopie;
    /// The two memo texts while a memo can be edited; line breaks as character 182.
    std::string memoKText;
    std::string memoBText;

    /// The selected client and care episode of the main menu (0: none); they outlive its unloading.
    std::int32_t aktKernID = 0;
    std::int32_t aktBetrID = 0;
    bool sitzungGesichert = false;
};

/// The state of the run that is going on.
Zustand& zustand();

/// Makes a state the current one for its own lifetime (one per program run).
class Zustandsplatz {
public:
    explicit Zustandsplatz(Zustand& zustand);
    Zustandsplatz(const Zustandsplatz&) = delete;
    Zustandsplatz& operator=(const Zustandsplatz&) = delete;
    ~Zustandsplatz();

private:
    Zustand* m_vorher;
};

/// Shows a message box under the program's title and returns the answer.
Antwort zeigeMeldung(std::string_view text, Symbol symbol = Symbol::Keins, Knöpfe knöpfe = Knöpfe::OK);
/// The same with a default button of its own.
Antwort zeigeMeldung(std::string_view text, Symbol symbol, Knöpfe knöpfe, Antwort vorgabe);
/// The string resource; "<leer>" when there is none.
std::string ladeResText(int nummer);
