#pragma once

#include "platform/bildschirm/Bildschirm.h"
#include "satz/Satzgrenzen.h"

#include <cstdint>
#include <string>

/// The client form: shows and edits one client record, which reaches the table at OK.
class frmStammdaten : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t};
    Textfeld tbNachname{*this, "tbNachname"_t, Einzeilig, satzgrenze::eingabelänge};
    Textfeld tbVorname{*this, "tbVorname"_t, Einzeilig, satzgrenze::eingabelänge};
    Textfeld tbStrasse{*this, "tbStrasse"_t, Einzeilig, satzgrenze::eingabelänge};
    Textfeld tbPLZ{*this, "tbPLZ"_t, Einzeilig, satzgrenze::eingabelänge};
    Textfeld tbOrt{*this, "tbOrt"_t, Einzeilig, satzgrenze::eingabelänge};
    Auswahlfeld comboGeschlecht{*this, "comboGeschlecht"_t};
    Datumsfeld DTPickerGeburtsdatum{*this, "DTPickerGeburtsdatum"_t};
    Schaltfläche cmdGebUnbekannt{*this, "cmdGebUnbekannt"_t, "<Unbekannt> (Datum ?)"_t, Schaltfläche::Rolle::Decke};
    Schaltfläche cmdGebUnbekanntEintragen{*this, "cmdGebUnbekanntEintragen"_t, "<unbekannt> eintragen"_t};
    Schaltfläche cmdMemo{*this, "cmdMemo"_t, "&Memo"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    /// `neu`: the client is not yet in the client table.
    frmStammdaten(std::int32_t klient, bool neu);

    const std::int32_t kernID;
    const bool istNeu;

private:
    void beiÖffnung() override;
    void ordneAn();

    void getFrmData();
    std::string erstelleKernDS() const;
    void zeigeGeburtsdatum(std::string_view gespeichert);
    void setzeGebUnbekannt(bool unbekannt);
    bool liegtNeuInDerZukunft(std::string_view satz) const;

    void beiOK();
    void beiExit();

    std::string m_kernDSBeimÖffnen;
    std::string m_betrao;
};
