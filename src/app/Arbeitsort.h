#pragma once

#include "app/Befehlszeile.h"
#include "platform/dateien/Wegwerfordner.h"
#include "platform/umgebung/Laufort.h"
#include "platform/umgebung/Systemorte.h"

#include <optional>

class Dateien;

/// The folder of the records in the user's own folder.
inline constexpr auto ordnername = "Tolvek7";

/// Where a run works: found out before there is a window, and told to the `Umgebung`.
///
/// Records lie beside the program where it may write, so that a folder can be carried about as a whole; else,
/// when the program belongs to the system, in the user's own `Tolvek7`. A program folder that holds records
/// stays the place even when it has become write-protected: the person gets a message then, not an empty program.
/// The made-up facility has a temporary folder, which goes with this object; one that a crash left behind goes at
/// the next start. Any other folder may have to be made before the program can start.
class Arbeitsort {
public:
    /// Laufzeitfehler where no place can be found or the made-up facility can't be written.
    Arbeitsort(const Aufruf& aufruf, const Systemorte& orte, Dateien& dateien);

    const Laufort& laufort() const { return m_laufort; }

private:
    std::optional<Wegwerfordner> m_wegwerfordner;
    Laufort m_laufort;
};

/// The folder of records for a call that works on real ones; nothing is made.
std::filesystem::path findeDatenordner(const Aufruf& aufruf, const Systemorte& orte, Dateien& dateien);
