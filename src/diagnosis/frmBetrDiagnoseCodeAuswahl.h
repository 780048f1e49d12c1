#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <cstdint>

/// Lets the user pick one of the 29 problem areas.
class frmBetrDiagnoseCodeAuswahl : public Bildschirm {
public:
    Beschriftung lblName{*this, "lblName"_t, "Problembereiche"_t};
    /// Row g is group g.
    Liste lvwDiagCodes{*this, "lvwDiagCodes"_t, {"Code", "Name"}};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    frmBetrDiagnoseCodeAuswahl();

    /// The group that was chosen, -1 after Exit.
    std::int16_t gruppe() const { return m_gruppe; }

private:
    void beiÖffnung() override;

    bool willBearbeiten(int gruppe) const;
    void beiOK();

    std::int16_t m_gruppe = -1;
};
