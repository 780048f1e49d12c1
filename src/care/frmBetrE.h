#pragma once

#include "care/Betreuungsseite.h"

/// The end-of-care page: contacts, kind of ending, state of the problem, referrals. The care main page opens
/// it only while the end in flight is a date.
class frmBetrE : public Betreuungsseite {
public:
    Auswahlfeld comboKontakte{*this, "comboKontakte"_t};
    Auswahlfeld comboArtEnd1{*this, "comboArtEnd1"_t};
    Auswahlfeld comboArtEnd2{*this, "comboArtEnd2"_t};
    Auswahlfeld comboProblEnde{*this, "comboProblEnde"_t};
    Auswahlfeld comboWeiter{*this, "comboWeiter"_t};
    Elementreihe<Beschriftung> lblVermitt{*this, "lblVermitt"_t, 1, 23};
    Elementreihe<triCtlJaNein> triJaNeinVermitt{*this, "triJaNeinVermitt"_t, 1, 23};
    Schaltfläche cmdSchnellFüller{*this, "cmdSchnellFüller"_t, "!"_t, Schaltfläche::Rolle::Füller};

    frmBetrE();

private:
    void baueTafel();
    void richteVermittlungenEin();
    void ordneAn();
};
