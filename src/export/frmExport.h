#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <cstdint>
#include <filesystem>

/// The yearly export: asks for the year and writes Kern.txt and Diagnose.txt into the year's own folder. A
/// child window over the main menu, which is disabled meanwhile.
class frmExport : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Export"_t};
    Beschriftung Label1{*this, "Label1"_t, "Bitte Exportjahr eingeben:"_t};
    Auswahlfeld comboJahr{*this, "comboJahr"_t, Auswahlfeld::Art::Tippbar};
    Beschriftung lblMeldung{*this, "lblMeldung"_t, "Bereit"_t};
    Fortschrittsbalken ProgressBar1{*this, "ProgressBar1"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "Exportieren"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    frmExport();

private:
    void beiOK();
    void beiExit();

    void exportiere(int jahr);
    /// The year's folder, made or confirmed; empty when the user does not want the old export replaced.
    std::filesystem::path richteOrdnerEin(int jahr);
    void zeigeFortschritt(std::int32_t nummer, std::int32_t anzahl);

    bool m_läuft = false;
};
