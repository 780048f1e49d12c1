#pragma once

#include "care/Betreuungsseite.h"

/// Socio-demographic page 2: livelihood before the begin and after the end, with the main one marked; school,
/// training, work, debts.
///
/// A main livelihood is always also a livelihood: marking answers "ja", and an answer other than "ja" takes
/// the mark away. The answer survives the mark.
class frmBetrC : public Betreuungsseite {
public:
    Elementreihe<Beschriftung> lblLebUnt{1, 12};
    Elementreihe<triCtlJaNein> triJaNeinLebuntv{1, 12};
    /// The heads over the two groups of options.
    Beschriftung Frame1{"Haupt- lebens- unterhalt"_t}, Frame2{"Haupt- lebens- unterhalt"_t};
    Elementreihe<Optionsfeld> optLebunterV{1, 12};
    Elementreihe<triCtlJaNein> triJaNeinLebuntn{1, 12};
    Elementreihe<Optionsfeld> optLebunterN{1, 12};
    Auswahlfeld comboSchule, comboAusbild;
    Auswahlfeld comboErwerb1, comboErwerb2, comboErwerb3;
    Auswahlfeld comboSchulden;
    Elementreihe<Schaltfläche> cmdSchnellFüller{0, 1, "!"_t, Schaltfläche::Rolle::Füller};

    /// `betreuung` is the care main page.
    explicit frmBetrC(Bildschirm& betreuung);

private:
    void benenneElemente();
    void baueTafel();
    void ordneAn();
    Anordnung lebensunterhalt();

    void nachLaden() override;

    Optionsgruppe m_hauptVor, m_hauptNach;
};
