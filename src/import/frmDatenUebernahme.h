#pragma once

#include "import/Importlauf.h"
#include "platform/bildschirm/Bildschirm.h"

#include <filesystem>

/// Takes over the client and care files of the older generation. Opened by the main menu, which hides itself
/// meanwhile, and only while no client exists.
class frmDatenÜbernahme : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Datenübernahme"_t};
    Textfeld tbKernDatAlt{*this, "tbKernDatAlt"_t};
    Schaltfläche cmdGetKernDat{*this, "cmdGetKernDat"_t, "kernDat"_t};
    Textfeld tbBetrDatAlt{*this, "tbBetrDatAlt"_t};
    Schaltfläche cmdGetBetreuungenDat{*this, "cmdGetBetreuungenDat"_t, "betreuungenDat"_t};
    /// No function; a notice.
    Schaltfläche cmdBeiDerArbeit{*this, "cmdBeiDerArbeit"_t, "... bitte warten, der Import läuft ..."_t,
                                 Schaltfläche::Rolle::Decke};
    Beschriftung lblStatus{*this, "lblStatus"_t, "Bereit"_t};
    Fortschrittsbalken ProgressBar1{*this, "ProgressBar1"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "Import starten"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    frmDatenÜbernahme();

private:
    void beiOK();
    void wähle(Textfeld& ziel, std::filesystem::path& gewählt);

    void zeigeFehlschlag();
    /// The path in the box: the chosen one while it still stands there, else the typed one.
    std::filesystem::path pfadIn(const Textfeld& feld, const std::filesystem::path& gewählt) const;

    std::filesystem::path m_ordner; ///< of the file chosen last
    std::filesystem::path m_kernDatAlt;
    std::filesystem::path m_betrDatAlt;
};
