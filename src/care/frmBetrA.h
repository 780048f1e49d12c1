#pragma once

#include "care/Betreuungsseite.h"

/// The measures page: substitution drug, earlier help, measures inside and outside the facility, number of
/// earlier measures, cooperation partners.
class frmBetrA : public Betreuungsseite {
public:
    Auswahlfeld comboSubstitut{*this, "comboSubstitut"_t};
    Auswahlfeld comboZuvorNULL{*this, "comboZuvorNULL"_t};
    Elementreihe<Beschriftung> lblZuvor{*this, "lblZuvor"_t, 1, 18};
    Elementreihe<triCtlJaNein> triJaNeinMasInt{*this, "triJaNeinMasInt"_t, 1, 17};
    Elementreihe<triCtlJaNein> triJaNeinMasExt{*this, "triJaNeinMasExt"_t, 1, 17};
    Elementreihe<Auswahlfeld> comboZuvor{*this, "comboZuvor"_t, 1, 18};
    Elementreihe<Beschriftung> lblKooper{*this, "lblKooper"_t, 1, 26};
    Elementreihe<triCtlJaNein> triJaNeinKooper{*this, "triJaNeinKooper"_t, 1, 26};
    Elementreihe<Schaltfläche> cmdSchnellFüller{*this, "cmdSchnellFüller"_t, 0, 3, "!"_t, Schaltfläche::Rolle::Füller};

    frmBetrA();

private:
    void baueTafel();
    Anordnung maßnahmen();
    Anordnung kooperationen();
    void setzeZuvorAufNull();
};
