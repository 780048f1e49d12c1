#pragma once

#include <functional>

class Arbeitsmappe;

/// Called now and then during work that takes seconds, with the share of it that is done (0 to 1), so that the
/// window can be painted and tell the truth.
using Zwischendurch = std::function<void(double anteil)>;

/// A spreadsheet program of the desktop, as far as this program needs one.
class Tabellenprogramm {
public:
    virtual ~Tabellenprogramm() = default;
    /// Whether one can be started.
    virtual bool istDa() = 0;
    /// Opens the workbook there as a new, unsaved document; false when the program can't be started.
    virtual bool öffne(Arbeitsmappe& mappe, const Zwischendurch& zwischendurch) = 0;
};
