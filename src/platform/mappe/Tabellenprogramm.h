#pragma once

#include <functional>

class Arbeitsmappe;

/// Called now and then during work that takes seconds, so that the window can be painted.
using Zwischendurch = std::function<void()>;

/// A spreadsheet program of the desktop, as far as this program needs one.
class Tabellenprogramm {
public:
    virtual ~Tabellenprogramm() = default;
    /// Whether one can be started.
    virtual bool istDa() = 0;
    /// Opens the workbook there as a new, unsaved document.
    virtual void öffne(Arbeitsmappe& mappe, const Zwischendurch& zwischendurch) = 0;
};
