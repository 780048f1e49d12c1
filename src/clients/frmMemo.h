#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <string>
#include <string_view>

/// The memo form: edits the two free texts `memoKText` and `memoBText` of the state. The calling screen writes
/// them into its records at its own OK. A record is one line, so a line break is stored as character 182.
class frmMemo : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t};
    Textfeld tbMemoK{*this, "tbMemoK"_t, Mehrzeilig};
    Textfeld tbMemoB{*this, "tbMemoB"_t, Mehrzeilig};
    Schaltfläche cmdDummy{*this, "cmdDummy"_t, "Es wurde keine Betreuung ausgewählt"_t, Schaltfläche::Rolle::Decke};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    /// `zeigeMemoB`: the caller has no care episode, and the care-level box is covered.
    explicit frmMemo(bool zeigeMemoB);

private:
    void beiÖffnung() override;
    void beiEntladen() override;
    void beiOK();
    void beiExit();

    const bool m_zeigeMemoB;
};

/// Character 182 becomes carriage return and line feed, all others stay.
std::string alsAnzeigeform(std::string_view gespeichert);
/// Carriage return becomes character 182, line feeds are dropped, all others stay.
std::string alsSpeicherform(std::string_view angezeigt);
