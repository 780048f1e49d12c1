#include "import/frmMergeDB.h"

#include "zustand/Zustand.h"

frmMergeDB::frmMergeDB() : Bildschirm("frmMergeDB"_t)
{
    benenne("lblHeader"_t, lblHeader);
    benenne("lblName"_t, lblName);
    benenne("cmdMemo"_t, cmdMemo);
    benenne("cmdOK"_t, cmdOK);
    benenne("cmdExit"_t, cmdExit);
    kopfband.titel = &lblHeader;
    kopfband.name = &lblName;
    leiste.links = {&cmdMemo};
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;
    cmdOK.beiKlick = [] { zeigeMeldung("OK"_t); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmMergeDB::beiExit()
{
    zeigeMeldung("exit"_t);
    zustand().folge.entlade(*this);
}
