#pragma once

#include <cstddef>
#include <vector>

/// Where the columns of some rows of a sheet are stored. Deleting a column moves no cell: the map forgets
/// where it was stored, and all columns behind it count one less.
class Spaltenkarte {
public:
    /// The place at which the column (from 1) is stored (from 1).
    int ort(int spalte) const;
    /// The columns `spalte` to `spalte` + `anzahl` - 1 go, those behind move left.
    void lösche(int spalte, int anzahl = 1);
    /// Whether the columns from `spalte` on are stored in one piece.
    bool istZusammenhängend(int spalte, int anzahl) const
    {
        return ort(spalte + anzahl - 1) == ort(spalte) + anzahl - 1;
    }

private:
    std::vector<int> m_orte; ///< of the columns from 1 on; behind the last one they follow without a gap
    int m_gelöscht = 0;
};
