#pragma once

#include "care/Betreuungsseite.h"

/// Socio-demographic page 1: family, household, children, housing.
class frmBetrB : public Betreuungsseite {
public:
    Auswahlfeld comboFamsta{*this, "comboFamsta"_t};
    Auswahlfeld comboPartner{*this, "comboPartner"_t};
    Elementreihe<Beschriftung> lblLebensit{*this, "lblLebensit"_t, 0, 5};
    Elementreihe<Auswahlfeld> comboLebensit{*this, "comboLebensit"_t, 0, 5};
    Auswahlfeld comboKinder1{*this, "comboKinder1"_t};
    Auswahlfeld comboKinder2{*this, "comboKinder2"_t};
    Auswahlfeld comboWohnung1{*this, "comboWohnung1"_t};
    Auswahlfeld comboWohnung2{*this, "comboWohnung2"_t};
    Auswahlfeld comboWohnung3{*this, "comboWohnung3"_t};

    frmBetrB();

private:
    void baueTafel();
    void ordneAn();
    void zeigeLebensit();

    void nachLaden() override { zeigeLebensit(); }
    void vorSammeln() override;
};
