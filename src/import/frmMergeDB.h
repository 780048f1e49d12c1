#pragma once

#include "platform/bildschirm/Bildschirm.h"

/// A placeholder for a merge of tables, which this program does not offer: nothing opens it.
class frmMergeDB : public Bildschirm {
public:
    Beschriftung lblHeader;
    Beschriftung lblName;
    Schaltfläche cmdMemo{"&Memo"_t};
    Schaltfläche cmdOK{"&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{"&Exit"_t};

    frmMergeDB();

private:
    void beiExit();
};
