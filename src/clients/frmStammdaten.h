#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <cstdint>
#include <string>

/// The client form: shows and edits one client record, which reaches the table at OK.
class frmStammdaten : public Bildschirm {
public:
    Beschriftung lblHeader;
    Textfeld tbNachname{Einzeilig, höchstlänge};
    Textfeld tbVorname{Einzeilig, höchstlänge};
    Textfeld tbStrasse{Einzeilig, höchstlänge};
    Textfeld tbPLZ{Einzeilig, höchstlänge};
    Textfeld tbOrt{Einzeilig, höchstlänge};
    Auswahlfeld comboGeschlecht;
    Datumsfeld DTPickerGeburtsdatum;
    Schaltfläche cmdGebUnbekannt{"<Unbekannt> (Datum ?)"_t, Schaltfläche::Rolle::Decke};
    Schaltfläche cmdGebUnbekanntEintragen{"<unbekannt> eintragen"_t};
    Schaltfläche cmdMemo{"&Memo"_t};
    Schaltfläche cmdOK{"&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{"&Exit"_t};

    // set by the main menu before it shows the form
    std::int32_t kernID = 0;
    bool istNeu = false;
    bool istErsterAufruf = false;

    explicit frmStammdaten(Bildschirm& hauptmenü);

private:
    static constexpr std::size_t höchstlänge = 255;

    void beiAktivierung() override;
    void beiEntladen() override;
    void ordneAn();

    void richteEin();
    void getFrmData();
    std::string erstelleKernDS() const;
    void zeigeGeburtsdatum(std::string_view gespeichert);
    void setzeGebUnbekannt(bool unbekannt);
    bool liegtNeuInDerZukunft(std::string_view satz) const;

    void beiOK();
    void beiExit();
    void schließe();

    Bildschirm& m_hauptmenü;
    std::string m_kernDSBeimÖffnen;
    std::string m_betrao;
};
