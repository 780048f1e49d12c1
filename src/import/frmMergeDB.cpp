#include "import/frmMergeDB.h"

#include "platform/text/Text.h"
#include "zustand/Zustand.h"

frmMergeDB::frmMergeDB() : Bildschirm("frmMergeDB"_t)
{
    kopfband.titel = &lblHeader;
    kopfband.name = &lblName;
    leiste.links = {&cmdMemo};
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;
    cmdOK.beiKlick = [] { zeigeMeldung("OK"_t); };
    cmdExit.beiKlick = [this] {
        zeigeMeldung("exit"_t);
        zustand().folge.entlade(*this);
    };
}
