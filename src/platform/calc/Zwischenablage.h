#pragma once

#include "platform/dateien/Wegwerfordner.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A temporary folder that only its owner can enter, for one workbook on its way to the spreadsheet program. Folder and
/// file go with the object, unless they were handed over.
///
/// The folder is locked as long as the file in it is needed, by this object or by the guard that `übergib` leaves
/// behind. So the next start can tell what was left behind by a run that did not end well, and removes it.
class Zwischenablage {
public:
    /// Makes the folder and the empty file in it. Throws Laufzeitfehler.
    explicit Zwischenablage(const std::string& dateiname);

    const std::filesystem::path& datei() const { return m_datei; }

    /// Starts the program, independent of this process, with the arguments and the file as the last one, and
    /// leaves it to a guard process to remove folder and file as soon as the program has read the file. False when
    /// the program can't be started; the file still is this object's then.
    bool übergib(const std::filesystem::path& programm, const std::vector<std::string>& argumente);
    /// The same without arguments, but the file stays, write-protected, until the next start.
    bool überlasse(const std::filesystem::path& programm);

    /// Removes the folders of earlier runs that nobody needs any more.
    static void räumeAuf();

private:
    std::unique_ptr<Wegwerfordner> m_ordner; ///< a guard may take it over
    std::filesystem::path m_datei;
};

/// The program in the search path, or nothing.
std::optional<std::filesystem::path> findeProgramm(const std::string& name);
/// What opens a file with the program that the desktop has registered for .xlsx files; nothing where none is.
std::optional<std::filesystem::path> findeProgrammFürXlsx();
