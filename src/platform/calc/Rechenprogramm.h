#pragma once

#include "platform/mappe/Tabellenprogramm.h"

#include <memory>
#include <string>
#include <vector>

class Zwischenablage;

/// The program that is looked for first, LibreOffice, and the argument by which it makes a new document of a file. One
/// that works on the file itself has no place here: the file goes as soon as it has been read.
struct Rechenaufruf {
    const char* name;
    const char* alsNeues;
};
inline constexpr Rechenaufruf erstesRechenprogramm{"soffice", "-n"};

/// The spreadsheet program of the desktop: LibreOffice, else the program that the desktop has for .xlsx.
///
/// The workbook goes to it through a temporary file that only its owner can read (health data), in a folder of
/// its own (Zwischenablage). LibreOffice opens it as a new, unsaved document, after which a guard removes the
/// file; another program works on the file itself, so that it stays until the next start of this program.
class Rechenprogramm : public Tabellenprogramm {
public:
    /// `zusätze` are further arguments for LibreOffice. Removes what an earlier run has left.
    explicit Rechenprogramm(std::vector<std::string> zusätze = {});
    ~Rechenprogramm() override;

    bool istDa() override;
    /// False when the program can't be started. Throws Laufzeitfehler when the file can't be written.
    bool öffne(Arbeitsmappe& mappe, const Zwischendurch& zwischendurch = {}) override;

private:
    std::vector<std::string> m_zusätze;
    std::vector<std::unique_ptr<Zwischenablage>> m_überlassene; ///< kept as needed until the end of the run
};
