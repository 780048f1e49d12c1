#pragma once

#include "care/Betreuungsseite.h"

/// The measures page: substitution drug, earlier help, measures inside and outside the facility, number of
/// earlier measures, cooperation partners.
class frmBetrA : public Betreuungsseite {
public:
    Auswahlfeld comboSubstitut, comboZuvorNULL;
    Elementreihe<Beschriftung> lblZuvor{1, 18};
    Elementreihe<triCtlJaNein> triJaNeinMasInt{1, 17};
    Elementreihe<triCtlJaNein> triJaNeinMasExt{1, 17};
    Elementreihe<Auswahlfeld> comboZuvor{1, 18, Auswahlfeld::Art::Tippbar};
    Elementreihe<Beschriftung> lblKooper{1, 26};
    Elementreihe<triCtlJaNein> triJaNeinKooper{1, 26};
    Elementreihe<Schaltfläche> cmdSchnellFüller{0, 3, "!"_t, Schaltfläche::Rolle::Füller};

    /// `betreuung` is the care main page.
    explicit frmBetrA(Bildschirm& betreuung);

private:
    void benenneElemente();
    void baueTafel();
    Anordnung maßnahmen();
    Anordnung kooperationen();
    void setzeZuvorAufNull();
};
