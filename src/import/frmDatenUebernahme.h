#pragma once

#include "import/Importlauf.h"
#include "platform/bildschirm/Bildschirm.h"

#include <filesystem>

/// Takes over the client and care files of the older generation. Opened by the main menu, which hides itself
/// meanwhile, and only while no client exists.
class frmDatenÜbernahme : public Bildschirm {
public:
    Beschriftung lblHeader{"Datenübernahme"_t};
    Textfeld tbKernDatAlt;
    Schaltfläche cmdGetKernDat{"kernDat"_t};
    Textfeld tbBetrDatAlt;
    Schaltfläche cmdGetBetreuungenDat{"betreuungenDat"_t};
    /// No function; a notice.
    Schaltfläche cmdBeiDerArbeit{"... bitte warten, der Import läuft ..."_t, Schaltfläche::Rolle::Decke};
    Beschriftung lblStatus{"Bereit"_t};
    Fortschrittsbalken ProgressBar1;
    Schaltfläche cmdOK{"Import starten"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{"&Exit"_t};

    explicit frmDatenÜbernahme(Bildschirm& hauptmenü);

private:
    void beiAktivierung() override;
    void beiEntladen() override;
    void beiOK();
    void beiExit();
    void wähle(Textfeld& ziel, std::filesystem::path& gewählt);

    void importiere(Importlauf& lauf);
    void melde(std::string_view status, int fortschritt);
    void zeigeFehlschlag();
    /// The path in the box: the chosen one while it still stands there, else the typed one.
    std::filesystem::path pfadIn(const Textfeld& feld, const std::filesystem::path& gewählt) const;

    Bildschirm& m_hauptmenü;
    bool m_eingerichtet = false;
    std::filesystem::path m_ordner; ///< of the file chosen last
    std::filesystem::path m_kernDatAlt;
    std::filesystem::path m_betrDatAlt;
};
