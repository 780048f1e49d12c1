#pragma once

class Arbeitsmappe;

/// A spreadsheet program of the desktop, as far as this program needs one.
class Tabellenprogramm {
public:
    virtual ~Tabellenprogramm() = default;
    /// Whether one can be started.
    virtual bool istDa() = 0;
    /// Opens the workbook there as a new, unsaved document.
    virtual void öffne(Arbeitsmappe& mappe) = 0;
};
