#pragma once

#include "care/Betreuungsseite.h"

/// Socio-demographic page 1: family, household, children, housing.
class frmBetrB : public Betreuungsseite {
public:
    Auswahlfeld comboFamsta, comboPartner;
    Elementreihe<Beschriftung> lblLebensit{0, 5};
    Elementreihe<Auswahlfeld> comboLebensit{0, 5};
    Auswahlfeld comboKinder1{Auswahlfeld::Art::Tippbar}, comboKinder2{Auswahlfeld::Art::Tippbar};
    Auswahlfeld comboWohnung1, comboWohnung2, comboWohnung3;

    /// `betreuung` is the care main page.
    explicit frmBetrB(Bildschirm& betreuung);

private:
    void benenneElemente();
    void baueTafel();
    void ordneAn();
    void zeigeLebensit();

    void nachLaden() override { zeigeLebensit(); }
    void vorSammeln() override;
};
