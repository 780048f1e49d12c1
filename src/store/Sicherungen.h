#pragma once

#include "store/Bestand.h"

#include <cstddef>
#include <filesystem>
#include <string>

/// The backups: the `.bak` files hold the tables as they were at the start of the session, `Daten/Sicherungen` what the
/// `.bak` files held before, a folder for each set, named after the time of that backup. The newest stay. No set that
/// holds records is overwritten before it lies there.
inline constexpr std::size_t aufgehobeneSätze = 10;

/// The session backup: the three tables into the .bak files. A missing `.bak` file is a Laufzeitfehler.
void sichereDateien(const Bestand& bestand);
/// The .bak files back over the tables; can be repeated.
void verwerfeSitzung(const Bestand& bestand);

/// First start: the data folder and the six empty files. What lies in `.bak` files is set aside before.
void legeTabellenAn(const Bestand& bestand);

/// Where the last good backup lies, for a message: the .bak files, and the newest folder of `Sicherungen` if any;
/// empty when there is none yet.
std::string ortDerSicherung(const Bestand& bestand);

/// Makes (or finds) the folder of a set in `Sicherungen`.
std::filesystem::path legeSicherungsordnerAn(const Bestand& bestand, const std::filesystem::path& name);
/// Removes the sets that were begun and not finished.
void entferneAngefangeneSicherungen(const Bestand& bestand);
