#pragma once

#include "care/Betreuungsseite.h"

/// The end-of-care page: contacts, kind of ending, state of the problem, referrals. The care main page opens
/// it only while the end in flight is a date.
class frmBetrE : public Betreuungsseite {
public:
    Auswahlfeld comboKontakte{Auswahlfeld::Art::Tippbar};
    Auswahlfeld comboArtEnd1, comboArtEnd2, comboProblEnde, comboWeiter;
    Elementreihe<Beschriftung> lblVermitt{1, 23};
    Elementreihe<triCtlJaNein> triJaNeinVermitt{1, 23};
    Schaltfläche cmdSchnellFüller{"!"_t, Schaltfläche::Rolle::Füller};

    /// `betreuung` is the care main page.
    explicit frmBetrE(Bildschirm& betreuung);

private:
    void benenneElemente();
    void baueTafel();
    void richteVermittlungenEin();
    void ordneAn();
};
