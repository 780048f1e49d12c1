#pragma once

#include "Aenderungsregeln.h"
#include "Mitschrift.h"
#include "Tabellenstand.h"
#include "Zufall.h"

#include "ablauf/Lauf.h"

#include <cstddef>
#include <optional>
#include <string>

/// A walk over the screens at random: it starts the program in a fresh folder with a few clients, then clicks
/// and types wherever a person could, answers boxes as chance has it, and starts the program again when it
/// has ended. After every step the tables, the folder and the order of the screens are looked at.
///
/// Everything that it does is a statement of the scenario language, so that a walk can be run again as a
/// scenario.
class Irrgang {
public:
    Irrgang(Oberfläche& oberfläche, unsigned long long saat);

    /// The first thing that was wrong (UTF-8), nothing after as many good steps as wanted.
    std::optional<std::string> gehe(int schritte);

    int gegangen() const { return m_gegangen; }
    /// How often the tables have changed; a walk that never stores anything tests little.
    int gespeichert() const { return m_gespeichert; }
    /// How often the process died while it wrote.
    int gestorben() const { return m_gestorben; }
    const Mitschrift& mitschrift() const { return m_mitschrift; }
    /// Adds the tables as they now are as expectations.
    void schließeMitschriftAb();

private:
    void richteEin();
    void schreibeAltdaten();
    void schritt();
    void starteNeu();
    void handle();
    void stirb();
    void handleAmRahmen();
    Element* wähleElement();
    Element* irgendeins(const std::vector<Element*>& elemente);
    bool meidet(const Element& element);

    void sage(const std::string& anweisung);
    void führeAus(const std::string& anweisung);
    void vermerkeMeldungen();
    Antwort antworte(const Meldung& meldung);
    std::optional<std::filesystem::path> wähleDatei();

    void prüfeNach(const Urheber& urheber);
    void prüfeAbsturz(Verstöße& verstöße) const;
    void prüfeMitPrüfer(Verstöße& verstöße) const;
    void prüfeOrdner(Verstöße& verstöße) const;
    void prüfeBildschirme(Verstöße& verstöße) const;
    void wirf(const Verstöße& verstöße) const;

    Zufall m_zufall;
    Szenario m_szenario{.pfad = "irrgang.szenario", .anweisungen = {}};
    Lauf m_lauf;
    Mitschrift m_mitschrift;
    Datum m_heute{2007, 8, 2};
    std::string m_element; ///< name of the element that is acted on
    Tabellenstand m_stand;
    Tabellenstand m_sicherung;
    bool m_hatImportiert = false;
    int m_gegangen = 0;
    int m_gespeichert = 0;
    int m_gestorben = 0;
};
