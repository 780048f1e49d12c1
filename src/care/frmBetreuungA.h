#pragma once

#include "care/Seitenfelder.h"
#include "care/frmBetrA.h"
#include "care/frmBetrB.h"
#include "care/frmBetrC.h"
#include "care/frmBetrE.h"
#include "care/frmBetreuungZeitraum.h"
#include "diagnosis/frmBetrDiagnose.h"
#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Bildschirmplatz.h"

#include <cstdint>
#include <string>

/// The main page of one care episode, and the only screen of it that writes to the tables.
///
/// It loads the three records into the working copy and leads to the period dialogue, the pages, the
/// diagnosis page and the memo. OK writes care, diagnosis and client record in one go; Exit throws the
/// working copy away, and nothing has to be restored, since nothing was written.
class frmBetreuungA : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Betreuung Hauptseite"_t};
    Beschriftung lblName{*this, "lblName"_t};
    Beschriftung lblBetrBeg{*this, "lblBetrBeg"_t};
    Beschriftung lblBetrEnd{*this, "lblBetrEnd"_t};
    Auswahlfeld comboWieder{*this, "comboWieder"_t};
    Auswahlfeld comboBetrGru{*this, "comboBetrGru"_t};
    Auswahlfeld comboAngeho{*this, "comboAngeho"_t};
    Auswahlfeld comboProblem{*this, "comboProblem"_t};
    Auswahlfeld comboNation{*this, "comboNation"_t};
    Auswahlfeld comboSprache{*this, "comboSprache"_t};
    Auswahlfeld comboMigrant1{*this, "comboMigrant1"_t};
    Auswahlfeld comboMigrant2{*this, "comboMigrant2"_t};
    Auswahlfeld comboVermitt{*this, "comboVermitt"_t};
    Auswahlfeld comboAuflagen1{*this, "comboAuflagen1"_t};
    Auswahlfeld comboAuflagen2{*this, "comboAuflagen2"_t};
    Elementreihe<Beschriftung> lblKosten{*this, "lblKosten"_t, 1, 9};
    Elementreihe<triCtlJaNein> triJaNeinKosten{*this, "triJaNeinKosten"_t, 1, 9};
    Schaltfläche cmdSchnellFüller{*this, "cmdSchnellFüller"_t, "!"_t, Schaltfläche::Rolle::Füller};
    /// Blank cover over comboAngeho and comboProblem while the reason is not a person's surroundings.
    Schaltfläche cmdIsEigeneProblematik{*this, "cmdIsEigeneProblematik"_t, {}, Schaltfläche::Rolle::Decke};
    Schaltfläche cmdBearbeiteZeitraum{*this, "cmdBearbeiteZeitraum"_t, "bearbeite Zeitraum"_t};
    Schaltfläche cmdBetrA{*this, "cmdBetrA"_t, "Maßnahmen und Interventionen"_t, Schaltfläche::Rolle::Weg};
    Schaltfläche cmdBetrB{*this, "cmdBetrB"_t, "Soziodemo- grafische Daten 1"_t, Schaltfläche::Rolle::Weg};
    Schaltfläche cmdBetrC{*this, "cmdBetrC"_t, "Soziodemo- grafische Daten 2"_t, Schaltfläche::Rolle::Weg};
    Schaltfläche cmdBetrDiagnose{*this, "cmdBetrDiagnose"_t, "Diagnose und Konsum"_t, Schaltfläche::Rolle::Weg};
    Schaltfläche cmdBetrE{*this, "cmdBetrE"_t, "Daten zu Betreuungs- ende"_t, Schaltfläche::Rolle::Weg};
    Schaltfläche cmdMemo{*this, "cmdMemo"_t, "&Memo"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    /// `neu`: the episode is not yet in the care table, and the period dialogue comes first. Begin and end in flight
    /// stand in the working copy.
    frmBetreuungA(std::int32_t klient, std::int32_t nummer, bool neu);

    const std::int32_t kernID;
    const std::int32_t betrID;
    const bool istNeu;

private:
    void beiÖffnung() override;

    void baueTafel();
    void ordneAn();
    Anordnung angaben();
    Anordnung kostenträger();
    void richteKnöpfeEin();

    void ladeSeite();
    void ladeArbeitskopie();
    void zeigeBeginnUndEnde();
    void zeigeDaten();
    void zeigeBetrGru();
    bool hatProblemImUmfeld() const;
    std::string sammleSeitenDaten();

    template <class F> void öffneSeite(Bildschirmplatz<F>& platz);
    void öffneEnde();
    void zeigeZeitraum();
    void nimmZeitraum(const frmBetreuungZeitraum& dialog);
    void beiOK();
    void speichere();
    void beiExit();

    bool m_zeitraumGesetzt; ///< the episode has an accepted period
    Seitenfelder m_tafel;
    Bildschirmplatz<frmBetreuungZeitraum> m_zeitraum;
    Bildschirmplatz<frmBetrA> m_betrA;
    Bildschirmplatz<frmBetrB> m_betrB;
    Bildschirmplatz<frmBetrC> m_betrC;
    Bildschirmplatz<frmBetrDiagnose> m_betrDiagnose;
    Bildschirmplatz<frmBetrE> m_betrE;
};
