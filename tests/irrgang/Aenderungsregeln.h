#pragma once

#include "Tabellenstand.h"

#include "platform/bildschirm/Bildschirm.h"

/// Which screen acted, and on which record, as it stood before the action.
struct Urheber {
    std::string bildschirm; ///< "frmBetreuungA"
    int kernID = 0;
    int betrID = 0;
    bool istNeu = false;
};

/// The client form and the care main page tell which record they hold.
Urheber urheberVon(const Bildschirm& bildschirm);

/// What the action of the screen may have changed in the tables, and nothing else: the client form one client,
/// the main page one episode with its diagnosis and its client's status, the main menu by deleting or by
/// going back to the backup, the import an empty store.
void prüfeÄnderung(const Urheber& urheber, const Tabellenstand& vorher, const Tabellenstand& nachher,
                   const Tabellenstand& sicherung, Verstöße& verstöße);
/// The start works out the status of the clients anew and changes nothing else.
void prüfeStart(const Tabellenstand& vorher, const Tabellenstand& nachher, const Tabellenstand& sicherung,
                Verstöße& verstöße);
