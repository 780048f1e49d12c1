#pragma once

#include "diagnosis/frmBetrDiagnoseCodeAuswahl.h"
#include "diagnosis/frmBetrDiagnoseErstellen.h"
#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Bildschirmplatz.h"
#include "satz/WeitereDiagnosen.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// The scroll bar of the listing is its stop on the keyboard: beside scrolling, Space walks through the rows.
class Listungsleiste : public Bildlaufleiste {
public:
    using Bildlaufleiste::Bildlaufleiste;
    bool taste(const Taste& taste) override;

    std::function<void()> beiLeertaste;
};

/// The page "Diagnose und Konsum" of a care episode: the listing of the problem areas, the further diagnoses
/// and the answers about infection and intravenous use. It works on DSDiag and DSBetrDiag of the working copy;
/// nothing reaches the tables before the care main page's OK.
///
/// Each time the page comes up it is filled from the two working strings, so whatever was not collected before
/// is dropped: the memo and the chooser open without collecting, only the dialogue is preceded by it.
class frmBetrDiagnose : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t};
    Beschriftung lblName{*this, "lblName"_t};
    Beschriftung lblBetrBeg{*this, "lblBetrBeg"_t};
    Beschriftung lblBetrEnd{*this, "lblBetrEnd"_t};

    // The listing: row 0 is the main diagnosis, rows 1 to 30 are the others.
    Elementreihe<Beschriftung> lblProblem{*this, "lblProblem"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblKonsumart{*this, "lblKonsumart"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblKonsumtageBeg{*this, "lblKonsumtageBeg"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblKonsumtageEnd{*this, "lblKonsumtageEnd"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblICDxxx4{*this, "lblICDxxx4"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblAlterStörungsbeginn{*this, "lblAlterStörungsbeginn"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblRiskanterKonsum{*this, "lblRiskanterKonsum"_t, 0, letzteZeile};
    Elementreihe<Beschriftung> lblAlterErstkonsum{*this, "lblAlterErstkonsum"_t, 0, letzteZeile};
    Fläche frameVorne{*this, "frameVorne"_t};
    Fläche frameHinten{*this, "frameHinten"_t};
    Listungsleiste VScroll1{*this, "VScroll1"_t};

    Schaltfläche cmdNeueDiagnose{*this, "cmdNeueDiagnose"_t, "neuer Problembereich"_t};
    Schaltfläche cmdDiagnoseBearbeiten{*this, "cmdDiagnoseBearbeiten"_t, "Problembereich bearbeiten"_t};
    Schaltfläche cmdDiagnoseLöschen{*this, "cmdDiagnoseLöschen"_t, "Problembereich löschen"_t,
                                    Schaltfläche::Rolle::Gefahr};

    Beschriftung frameHDohne{*this, "frameHDohne"_t, "Grund, warum keine Hauptdiagnose gestellt wurde"_t};
    Elementreihe<Optionsfeld> optHDohne{*this, "optHDohne"_t, 0, 5};
    /// Lies over the options while there is a main diagnosis; has no action.
    Schaltfläche cmdIsHDGestellt{*this, "cmdIsHDGestellt"_t, "eine Hauptdiagnose wurde gestellt"_t,
                                 Schaltfläche::Rolle::Decke};

    Elementreihe<Textfeld> tbandereDiagnose{*this, "tbandereDiagnose"_t, 1, anzahlWeitereDiagnosen};
    Beschriftung lblWeitereICD{*this, "lblWeitereICD"_t, "Weitere ICD-10-Diagnosen"_t};
    Beschriftung lblICDPoly{*this, "lblICDPoly"_t, "Politoxikomanie"_t};
    Auswahlfeld comboICDPoly{*this, "comboICDPoly"_t};
    Auswahlfeld comboHIVInfekt{*this, "comboHIVInfekt"_t};
    Auswahlfeld comboHepatB{*this, "comboHepatB"_t};
    Auswahlfeld comboHepatC{*this, "comboHepatC"_t};
    Beschriftung frameivKonsum{*this, "frameivKonsum"_t, "I.v. Konsum"_t};
    Elementreihe<Optionsfeld> optIVKonsum{*this, "optIVKonsum"_t, 0, 3};

    Schaltfläche cmdMemo{*this, "cmdMemo"_t, "&Memo"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    /// The group in hand, -1 for none.
    std::int16_t gruppeAktuell = -1;

    frmBetrDiagnose();

    /// The switching point between page, chooser and dialogue: with `neu` the chooser opens; without, it has
    /// closed, and the dialogue opens for the group chosen, or the group in hand is the earlier one again.
    void steuereNeueDiagnose(bool neu);

private:
    static constexpr int letzteZeile = 30;
    static constexpr int spaltenzahl = 8;

    void beiÖffnung() override;
    void beiAktivierung() override;

    // captions and arrangement (frmBetrDiagnose_Aufbau.cpp)
    void ordneAn();
    Anordnung listungskarte();
    Anordnung antwortkarten();
    void bestimmeRegeln();
    void bestimmeZeilenregeln(int zeile);

    void richteEin();
    void prüfeBitfeld();
    Element& ersteFrage();
    void setzeRollbereich();

    // the elements and the two working strings
    void setFrmData();
    void zeigeBetrDiag();
    std::string sammleBetrDiag();
    std::string sammleDSDiag() const;
    void sammle();

    // the listing
    void zeigeDiagnosen();
    void schreibeZeile(int zeile, std::string_view text);
    std::string leseZeile(int zeile) const;
    void markiereZeile(int zeile);
    int getMarkierteZeile() const;
    bool istLeereZeile(int zeile) const;
    void beiZeilenklick(int zeile);
    void markiereNächsteZeile();
    void rolleZu(int zeile);
    void zeigeCodeAuswahl();
    void zeigeDiagnoseErstellen();

    // the further diagnoses
    bool prüfeWeitereDiagnose(int nummer);
    bool verlasseFeld();

    void beiBearbeiten();
    void beiLöschen();
    void beiOK();
    void beiExit();

    Optionsgruppe m_hdOhne, m_ivKonsum;
    Bildschirmplatz<frmBetrDiagnoseCodeAuswahl> m_auswahl;
    Bildschirmplatz<frmBetrDiagnoseErstellen> m_erstellen;

    /// The labels in the order of a row's fields.
    const std::array<Elementreihe<Beschriftung>*, spaltenzahl> m_spalten{
        &lblProblem, &lblKonsumart,           &lblKonsumtageBeg,   &lblKonsumtageEnd,
        &lblICDxxx4, &lblAlterStörungsbeginn, &lblRiskanterKonsum, &lblAlterErstkonsum};

    std::int16_t m_gruppeGemerkt = -1;
    /// Both working strings as the page found them; Exit goes back to them.
    std::string m_alteDSDiag, m_alteDSBetrDiag;
    /// The last accepted text of each further diagnosis. Starts empty, whatever the record holds.
    std::array<std::string, anzahlWeitereDiagnosen> m_angenommen;
};
