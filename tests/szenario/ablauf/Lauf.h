#pragma once

#include "ablauf/Schiedsrichter.h"
#include "oberflaeche/Oberflaeche.h"
#include "sprache/Szenariodatei.h"
#include "umgebung/Szenarioordner.h"
#include "umgebung/Szenarioumgebung.h"

#include "app/moMain.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

/// What a name in a scenario stands for: the frame, a screen, or an element; nothing of it where the screen
/// is not loaded.
struct Ziel {
    bool istRahmen = false;
    Bildschirm* bildschirm = nullptr;
    Element* element = nullptr;
};

/// One scenario on one surface: its program folder, its outside world, and the program while it runs.
class Lauf {
public:
    Lauf(const Szenario& szenario, Oberfläche& oberfläche);
    Lauf(const Lauf&) = delete;
    Lauf& operator=(const Lauf&) = delete;
    ~Lauf();

    /// A path of the scenario within the program folder.
    std::filesystem::path imProgramm(std::u32string_view pfad) const;
    /// A path outside, relative to the scenario file.
    std::filesystem::path draußen(std::u32string_view pfad) const;

    void starte();
    bool wurdeGestartet() const { return m_programm != nullptr; }
    bool läuft() const { return wurdeGestartet() && m_programm->zustand().ablauf.läuft(); }
    int status() const { return m_programm->zustand().ablauf.status(); }
    /// The message of the fatal failure, empty without one.
    std::string absturz() const;
    void sprichAbsturzAn() { m_absturzAngesprochen = true; }

    /// Throws when a box, or a fatal failure, has not been spoken of.
    void prüfeAngesprochen() const;
    /// What came up in the statement: a fatal failure's own box is no box to be spoken of.
    void nachAnweisung();

    /// Throws Scheitern when no element has the name.
    Ziel finde(std::u32string_view name) const;
    /// The element, which must be on a loaded screen of a running program.
    Element& findeElement(std::u32string_view name) const;
    /// Bildschirm in use, nullptr for none.
    const Bildschirm* inGebrauch() const;

    Oberfläche& oberfläche() const { return m_oberfläche; }
    Szenarioumgebung& umgebung() { return m_umgebung; }
    Schiedsrichter& schiedsrichter() { return m_schiedsrichter; }

private:
    Ziel findeAufBildschirm(std::string_view bildschirm, std::string_view element) const;
    Ziel findeÜberall(std::string_view name) const;

    std::filesystem::path m_szenarioordner;
    Szenarioordner m_ordner;
    Szenarioumgebung m_umgebung;
    Schiedsrichter m_schiedsrichter;
    Oberfläche& m_oberfläche;
    std::unique_ptr<Programm> m_programm;
    bool m_absturzAngesprochen = false;
};
