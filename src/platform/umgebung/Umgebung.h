#pragma once

#include "platform/text/Datum.h"
#include "platform/umgebung/Meldung.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

class Dateien;
class Arbeitsmappe;

/// Width and height in twips (15 twips are one logical pixel).
struct Größe {
    double breite = 0;
    double höhe = 0;
};

/// What an open-file dialogue is asked for.
struct Dateiwahl {
    std::filesystem::path anfangsordner;
    std::string filter; ///< pairs of name and pattern, all separated by "|"
    int merkmale = 0;   ///< bit flags of the dialogue (528388: file must exist, no read-only box)
};

/// The one door to the outside world: clock, program folder, instance test, message boxes, file dialogue,
/// spreadsheet program, file operations. `main.cpp` builds the one for people, the scenario runner the one
/// for scenarios; nothing in the logic asks the system for a date, a path or a window by itself.
class Umgebung {
public:
    Umgebung() = default;
    Umgebung(const Umgebung&) = delete;
    Umgebung& operator=(const Umgebung&) = delete;
    virtual ~Umgebung() = default;

    virtual Datum heute() = 0;
    /// The folder that holds the records, the settings and all else that the program writes.
    virtual std::filesystem::path programmordner() = 0;
    /// The folder of the files that the installation brings, for what the program folder has none of its own.
    virtual std::filesystem::path installation() { return programmordner(); }
    /// Whether the records are made up, for training.
    virtual bool istMuster() { return false; }
    /// False when a previous instance works on the same data folder, by whatever path, user or link. Makes the folder
    /// when it is missing, and holds it until the process ends. Laufzeitfehler when that can't be found out.
    virtual bool istErsteInstanz(const std::filesystem::path& datenordner) = 0;
    virtual Dateien& dateien() = 0;

    /// Blocks until the box is answered.
    virtual Antwort zeigeMeldung(const Meldung& meldung) = 0;
    /// Blocks; nothing on cancel.
    virtual std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& wahl) = 0;

    /// True when a spreadsheet program can be started at all.
    virtual bool findeTabellenprogramm() = 0;
    /// Hands the workbook over as a new, unsaved document. `fortschritt` hears now and then which share of that is
    /// done (0 to 1). False when the program that was found can't be started.
    virtual bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double anteil)>& fortschritt) = 0;

    /// The screen of the desktop, in twips.
    virtual Größe bildschirmgröße() = 0;
    /// Draws what has changed (status line, progress bar) at once; takes no input.
    virtual void zeichne() = 0;
    /// The same for the numbers of a long run, which come faster than anybody can read: not each is drawn.
    virtual void zeichneGelegentlich() { zeichne(); }
    /// As `zeichneGelegentlich`, and lets the user's pending actions happen (the refusal of Exit during the export).
    virtual void lasseEreignisseZu() = 0;
};
