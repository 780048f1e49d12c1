#pragma once

#include "care/frmBetreuungA.h"
#include "clients/frmInfo.h"
#include "clients/frmStammdaten.h"
#include "export/frmExport.h"
#include "import/frmDatenUebernahme.h"
#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Bildschirmplatz.h"
#include "spreadsheet/frmZuExcel.h"

#include <cstdint>
#include <functional>

/// The home screen: all clients, the care episodes of the selected one, and the commands on them. The selection
/// (`aktKernID`, `aktBetrID`) lives in the state, so that it outlasts the unloading of this screen.
///
/// Every activation reads the lists anew, so nobody has to tell the main menu what has changed.
class frmHauptmenü : public Bildschirm {
public:
    Menüeintrag mnDatei{"Datei"_t};
    Menüeintrag mnHandakte{"Handakte"_t};
    Menüeintrag mnExcel{"Daten > Excel"_t};
    Menüeintrag mnBeenden{"Beenden"_t};
    Menüeintrag Export{"Export"_t};
    Menüeintrag mnExport{"Export"_t};
    Menüeintrag mnFragezeichen{"?"_t};
    Menüeintrag mnInfo{"Info"_t};

    Beschriftung lblHeader{"Hauptmenü"_t};
    Liste lvwKlienten;
    Liste lvwBetreuungen;
    Schaltfläche cmdKlientenHinzufügen{"Klienten hinzufügen"_t};
    Schaltfläche cmdKlientenBearbeiten{"Klienten bearbeiten"_t};
    Schaltfläche cmdKlientenLöschen{"Klienten löschen"_t, Schaltfläche::Rolle::Gefahr};
    Schaltfläche cmdBetreuungHinzufügen{"Betreuung hinzufügen"_t};
    Schaltfläche cmdBetreuungBearbeiten{"Betreuung bearbeiten"_t};
    Schaltfläche cmdBetreuungLöschen{"Betreuung löschen"_t, Schaltfläche::Rolle::Gefahr};
    Schaltfläche cmdRollback{"Eingaben dieser Sitzung verwerfen"_t};
    Schaltfläche cmdDatenübernahme{"Import der Daten aus Tolvek"_t};
    Schaltfläche cmdExit{"&Exit"_t};

    /// `aufräumen` ends the run; the frame gives it.
    explicit frmHauptmenü(std::function<void()> aufräumen);

private:
    void beiAktivierung() override;
    void beiEntladen() override;

    void benenneElemente();
    void baueMenü();
    void ordneAn();
    void verbindeRegeln();

    // lists
    void leseListen();
    void fülleKlientenListe();
    void wähleAktuellenKlienten();
    void fülleBetreuungsListe(std::int32_t kernID);
    void beiKlientenKlick();
    bool beiKlientenTaste(const Taste& taste);
    void beiBetreuungsKlick();
    std::int32_t gewählteKernID() const;
    std::int32_t gewählteBetrID() const;
    std::int32_t betrIDIn(std::size_t zeile) const;

    // commands
    void fügeKlientenHinzu();
    void bearbeiteKlienten();
    void löscheKlienten();
    void löscheGewähltenKlienten();
    void fügeBetreuungHinzu();
    void bearbeiteBetreuung();
    void löscheBetreuung();
    void verwerfeEingaben();
    void zeigeStammdaten(std::int32_t kernID, bool istNeu);
    void zeigeBetreuung(std::int32_t betrID, bool istNeu);
    void zeigeExport();
    void zeigeExcel();
    void zeigeInfo();
    void beende();

    std::function<void()> m_aufräumen;
    Bildschirmplatz<frmStammdaten> m_stammdaten;
    Bildschirmplatz<frmBetreuungA> m_betreuung;
    Bildschirmplatz<frmDatenÜbernahme> m_datenÜbernahme;
    Bildschirmplatz<frmExport> m_export;
    Bildschirmplatz<frmZuExcel> m_excel;
    Bildschirmplatz<frmInfo> m_info;
};
