#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Takes the answers for one problem area: up to seven questions, and whether it is the main diagnosis. Which
/// questions there are, and which answers, follows from the group alone. Only OK changes DSDiag.
class frmBetrDiagnoseErstellen : public Bildschirm {
public:
    /// Questions 1 to 7 go into the block field of the same number; 0 is the head.
    Elementreihe<Beschriftung> lblFrage{*this, "lblFrage"_t, 0, 7};
    Beschriftung lblAntwort{*this, "lblAntwort"_t};
    Elementreihe<Auswahlfeld> comboAntwort{*this, "comboAntwort"_t, 1, 7};
    Ankreuzfeld cbHD{*this, "cbHD"_t, "Hauptdiagnose"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    /// The group, 1 to 29.
    const std::int16_t gruppeAktuell;

    explicit frmBetrDiagnoseErstellen(std::int16_t gruppe);

private:
    void beiÖffnung() override;

    void bestimmeAufbau();
    void bereiteFragenVor();
    void fülleAntworten();
    bool fülleAntwort(int frage, std::string_view wert);
    void wähleICD(std::string_view wert);
    void prüfeHDWechsel();
    void frageHDWechsel();
    bool prüfeAntworten();
    std::string sammleAntwort(int frage) const;
    std::string sammleAntworten() const;
    void beiOK();
    void beiExit();

    /// The main diagnosis on opening, -1 for none.
    std::int16_t m_hdGruppeAlt = -1;
    /// The block of the group on opening.
    std::string m_block;
    /// Set while prüfeHDWechsel runs, so that its own unticking doesn't start it again.
    bool m_prüftHDWechsel = false;
};
