#pragma once

#include "care/Zeitraumliste.h"
#include "platform/bildschirm/Bildschirm.h"

#include <cstdint>
#include <string>

/// The dialogue that fixes begin and end of one care episode: first the begin, then the end. It is the only
/// guard against two episodes of a client touching each other, and it writes nothing: what was accepted the caller
/// takes and keeps until its own OK.
class frmBetreuungZeitraum : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Bitte Zeitraum für Betreuung eingeben"_t};
    Beschriftung lblVon{*this, "lblVon"_t, "von:"_t};
    Beschriftung lblBis{*this, "lblBis"_t, "bis:"_t};
    Datumsfeld DTPickerVon{*this, "DTPickerVon"_t};
    Datumsfeld DTPickerBis{*this, "DTPickerBis"_t};
    /// Shown while the end is open.
    Schaltfläche cmdIsOffen{*this, "cmdIsOffen"_t, "offen"_t, Schaltfläche::Rolle::Gedrückt};
    Schaltfläche cmdOffenEintragen{*this, "cmdOffenEintragen"_t, "offen eintragen"_t};
    Schaltfläche cmdVonVerbessern{*this, "cmdVonVerbessern"_t, "von verbessern"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    std::string strVon; ///< begin, TT.MM.JJJJ
    std::string strBis; ///< end, TT.MM.JJJJ or "offen"
    /// Whether begin and end were accepted; not after Exit.
    bool istAngenommen() const { return m_angenommen; }

    /// The client whose episodes are to be respected, whether the episode is not yet in the care table, and its begin
    /// and end so far. The stored row of the episode itself is known by its begin alone.
    frmBetreuungZeitraum(std::int32_t kernID, bool istNeu, std::string von, std::string bis);

private:
    enum class Stufe { Beginn, Ende };

    void beiÖffnung() override;
    void ordneAn();
    void setzeStufeEins();
    void zeigeStufe();
    void zeigeEnde();
    void setzeFokusAufsEnde();
    void beiOK();
    void übernimmVon();
    void übernimmBis();
    void beiIsOffen();
    void beiOffenEintragen();
    void beiVonVerbessern();
    void beiExit();
    Nachbarn nachbarn() const;

    const std::int32_t m_kernID;
    const bool m_istNeu;
    bool m_angenommen = false;
    Zeitraumliste m_zeitraumListe;
    std::string m_altVon; ///< begin and end when stage 1 was last entered
    std::string m_altBis;
    Stufe m_stufe = Stufe::Beginn;
};
