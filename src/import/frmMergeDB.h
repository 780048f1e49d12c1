#pragma once

#include "platform/bildschirm/Bildschirm.h"

/// A placeholder for a merge of tables, which this program does not offer: asked for by name, nothing opens it.
class frmMergeDB : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t};
    Beschriftung lblName{*this, "lblName"_t};
    Schaltfläche cmdMemo{*this, "cmdMemo"_t, "&Memo"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

    frmMergeDB();
};
