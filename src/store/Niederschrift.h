#pragma once

#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Bestand.h"
#include "store/Fassung.h"

#include <filesystem>
#include <map>

/// How the tables of an action reach the disk together; `Vorgang.h` tells the whole.

/// The action is saved, but not in all tables yet: the next start completes it.
class UnvollendeterVorgang : public Laufzeitfehler {
public:
    using Laufzeitfehler::Laufzeitfehler;
};

/// Puts all of it in the place of the files, or nothing. A failure before the commit record is on the disk is a
/// Laufzeitfehler that leaves everything as it was; one after it is an UnvollendeterVorgang.
void schreibeNieder(const Bestand& bestand, const std::map<Tabelle, Fassung>& fassungen);

/// At start, under the lock and before anything is read: completes what a commit record tells, and removes what was
/// begun without one. Can be broken off and repeated at any point. New tables that fit no longer, because somebody
/// has changed the old ones meanwhile, are moved to the backups, and a box says so.
void vollendeVorgang(const Bestand& bestand);

/// Where the new content of a table is written, beside the place where the table really lies.
std::filesystem::path neuNeben(Dateien& dateien, const std::filesystem::path& tabelle);
