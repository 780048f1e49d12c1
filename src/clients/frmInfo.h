#pragma once

#include "platform/bildschirm/Bildschirm.h"

/// Name, version and origin of the program, where its data lie, and the keys. The main menu stays in use meanwhile.
class frmInfo : public Bildschirm {
public:
    Beschriftung lblHeader{"Über dieses Programm"_t};
    Bild picInfo{"info"_t};
    Beschriftung lblText, lblOrdner, lblTasten;
    Schaltfläche cmdOK{"OK"_t, Schaltfläche::Rolle::Haupt};

    frmInfo();

private:
    void beiAktivierung() override;
    void beiEntladen() override;
};
