#pragma once

#include "care/Betreuungsseite.h"

/// Socio-demographic page 2: livelihood before the begin and after the end, with the main one marked; school,
/// training, work, debts.
///
/// A main livelihood is always also a livelihood: marking answers "ja", and an answer other than "ja" takes
/// the mark away. The answer survives the mark.
class frmBetrC : public Betreuungsseite {
public:
    Elementreihe<Beschriftung> lblLebUnt{*this, "lblLebUnt"_t, 1, 12};
    Elementreihe<triCtlJaNein> triJaNeinLebuntv{*this, "triJaNeinLebuntv"_t, 1, 12};
    /// The heads over the two groups of options.
    Beschriftung Frame1{*this, "Frame1"_t, "Haupt- lebens- unterhalt"_t};
    Beschriftung Frame2{*this, "Frame2"_t, "Haupt- lebens- unterhalt"_t};
    Elementreihe<Optionsfeld> optLebunterV{*this, "optLebunterV"_t, 1, 12};
    Elementreihe<triCtlJaNein> triJaNeinLebuntn{*this, "triJaNeinLebuntn"_t, 1, 12};
    Elementreihe<Optionsfeld> optLebunterN{*this, "optLebunterN"_t, 1, 12};
    Auswahlfeld comboSchule{*this, "comboSchule"_t};
    Auswahlfeld comboAusbild{*this, "comboAusbild"_t};
    Auswahlfeld comboErwerb1{*this, "comboErwerb1"_t};
    Auswahlfeld comboErwerb2{*this, "comboErwerb2"_t};
    Auswahlfeld comboErwerb3{*this, "comboErwerb3"_t};
    Auswahlfeld comboSchulden{*this, "comboSchulden"_t};
    Elementreihe<Schaltfläche> cmdSchnellFüller{*this, "cmdSchnellFüller"_t, 0, 1, "!"_t, Schaltfläche::Rolle::Füller};

    frmBetrC();

private:
    void baueTafel();
    void ordneAn();
    Anordnung lebensunterhalt();

    void nachLaden() override;

    Optionsgruppe m_hauptVor, m_hauptNach;
};
