#include "export/Spaltentabelle.h"

#include "platform/text/Zahl.h"

namespace {

/// Number of the column on the sheet, 0 if the field is not on it.
std::size_t spaltennummer(const Satzfeld& feld, char blatt)
{
    if (feld.quelle.empty() || feld.quelle.front() != blatt) {
        return 0;
    }
    return static_cast<std::size_t>(leseGanzzahl16(std::string_view(feld.quelle).substr(1)).value_or(0));
}

} // namespace

void trageFelderEin(std::vector<Exportspalte>& spalten, char blatt, const std::vector<Satzfeld>& satzfelder,
                    const std::function<Exportspalte(const Satzfeld& feld, int nummer)>& kodierung)
{
    std::vector<bool> belegt(spalten.size() + 1);
    for (std::size_t i = 0; i < satzfelder.size(); ++i) {
        const auto spalte = spaltennummer(satzfelder[i], blatt);
        if (spalte != 0 && !belegt.at(spalte)) {
            spalten.at(spalte - 1) = kodierung(satzfelder[i], static_cast<int>(i) + 1);
            belegt[spalte] = true;
        }
    }
}
