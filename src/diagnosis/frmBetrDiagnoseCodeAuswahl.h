#pragma once

#include "platform/bildschirm/Bildschirm.h"

class frmBetrDiagnose;

/// Lets the user pick one of the 29 problem areas; the choice is handed back in the page's `gruppeAktuell`.
class frmBetrDiagnoseCodeAuswahl : public Bildschirm {
public:
    Beschriftung lblName{*this, "lblName"_t, "Problembereiche"_t};
    /// Row g is group g.
    Liste lvwDiagCodes{*this, "lvwDiagCodes"_t, {"Code", "Name"}};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    explicit frmBetrDiagnoseCodeAuswahl(frmBetrDiagnose& seite);

private:
    void beiAktivierung() override;
    void beiEntladen() override;

    bool willBearbeiten(int gruppe) const;
    void beiOK();
    void beiExit();
    void schließe();

    frmBetrDiagnose& m_seite;
};
