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
    Menüeintrag mnDatei{*this, "mnDatei"_t, "Datei"_t};
    Menüeintrag mnHandakte{*this, "mnHandakte"_t, "Handakte"_t};
    Menüeintrag mnExcel{*this, "mnExcel"_t, "Daten > Excel"_t};
    Menüeintrag mnBeenden{*this, "mnBeenden"_t, "Beenden"_t};
    Menüeintrag Export{*this, "Export"_t, "Export"_t};
    Menüeintrag mnExport{*this, "mnExport"_t, "Export"_t};
    Menüeintrag mnFragezeichen{*this, "mnFragezeichen"_t, "?"_t};
    Menüeintrag mnInfo{*this, "mnInfo"_t, "Info"_t};

    Beschriftung lblHeader{*this, "lblHeader"_t, "Hauptmenü"_t};
    Liste lvwKlienten{*this,
                      "lvwKlienten"_t,
                      {"kernID"_t, "i"_t, "Nachname"_t, "Vorname"_t, "Straße"_t, "PLZ"_t, "Ort"_t, "GebDatum"_t}};
    Liste lvwBetreuungen{*this, "lvwBetreuungen"_t, {"kernID"_t, "betrID"_t, "von"_t, "bis"_t}};
    Schaltfläche cmdKlientenHinzufügen{*this, "cmdKlientenHinzufügen"_t, "Klienten hinzufügen"_t};
    Schaltfläche cmdKlientenBearbeiten{*this, "cmdKlientenBearbeiten"_t, "Klienten bearbeiten"_t};
    Schaltfläche cmdKlientenLöschen{*this, "cmdKlientenLöschen"_t, "Klienten löschen"_t, Schaltfläche::Rolle::Gefahr};
    Schaltfläche cmdBetreuungHinzufügen{*this, "cmdBetreuungHinzufügen"_t, "Betreuung hinzufügen"_t};
    Schaltfläche cmdBetreuungBearbeiten{*this, "cmdBetreuungBearbeiten"_t, "Betreuung bearbeiten"_t};
    Schaltfläche cmdBetreuungLöschen{*this, "cmdBetreuungLöschen"_t, "Betreuung löschen"_t,
                                     Schaltfläche::Rolle::Gefahr};
    Schaltfläche cmdRollback{*this, "cmdRollback"_t, "Eingaben dieser Sitzung verwerfen"_t};
    Schaltfläche cmdDatenübernahme{*this, "cmdDatenübernahme"_t, "Import der Daten aus Tolvek"_t};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    /// `aufräumen` ends the run; the frame gives it.
    explicit frmHauptmenü(std::function<void()> aufräumen);

private:
    void beiAktivierung() override;

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
