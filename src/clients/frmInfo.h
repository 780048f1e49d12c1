#pragma once

#include "platform/bildschirm/Bildschirm.h"

/// Name, version and origin of the program, where its data lie, and the keys. The main menu stays in use meanwhile.
class frmInfo : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Über dieses Programm"_t};
    Bild picInfo{*this, "picInfo"_t, "info"_t};
    Beschriftung lblText{*this, "lblText"_t};
    Beschriftung lblOrdner{*this, "lblOrdner"_t};
    Beschriftung lblTasten{*this, "lblTasten"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "OK"_t, Schaltfläche::Rolle::Haupt};

    frmInfo();
};
