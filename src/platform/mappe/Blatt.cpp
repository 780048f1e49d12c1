#include "platform/mappe/Blatt.h"

#include <iterator>

const Feldplan alleFelder;

Blatt::Zeile& Blatt::zeileFür(int zeile)
{
    if (m_zeilen.size() < static_cast<std::size_t>(zeile)) {
        m_zeilen.resize(static_cast<std::size_t>(zeile));
    }
    return m_zeilen[static_cast<std::size_t>(zeile - 1)];
}

void Blatt::setze(int zeile, int spalte, std::string_view text, Zelltyp typ)
{
    verweise(zeile, spalte, kopie(text), typ);
}

void Blatt::verweise(int zeile, int spalte, std::string_view text, Zelltyp typ)
{
    if (!text.empty() || zelle(zeile, spalte).art != Zellart::Leer) {
        füge(zeileFür(zeile), {text, nullptr, spalte, typ});
    }
}

void Blatt::verweiseFelder(int zeile, int spalte, std::string_view text, const Feldplan& plan)
{
    if (!text.empty()) {
        füge(zeileFür(zeile), {text, &plan, spalte, plan.typ});
    }
}

void Blatt::füge(Zeile& z, const Stück& stück)
{
    const auto ort = std::ranges::lower_bound(z, stück.spalte, {}, &Stück::spalte);
    if (ort != z.end() && ort->spalte == stück.spalte) {
        *ort = stück;
    } else {
        z.insert(ort, stück);
    }
}

Zellwert Blatt::zelle(int zeile, int spalte) const
{
    Zellwert gefunden;
    if (zeile < 1 || static_cast<std::size_t>(zeile) > m_zeilen.size()) {
        return gefunden;
    }
    const auto& z = m_zeilen[static_cast<std::size_t>(zeile - 1)];
    const auto dahinter = std::ranges::upper_bound(z, spalte, {}, &Stück::spalte);
    if (dahinter != z.begin()) {
        fürJedesFeld(*std::prev(dahinter), [&](int eine, std::string_view text, Zelltyp typ) {
            if (eine == spalte) {
                gefunden = leseZelle(text, typ);
            }
        });
    }
    return gefunden;
}

const std::string* Blatt::kommentar(int zeile, int spalte) const
{
    const auto ort = m_kommentare.find({zeile, spalte});
    return ort == m_kommentare.end() ? nullptr : &ort->second;
}

int Blatt::zeilenanzahl() const
{
    for (int zeile = static_cast<int>(m_zeilen.size()); zeile > 0; --zeile) {
        bool hatInhalt = false;
        fürJedeZelle(zeile, [&](int, const Zellwert&) { hatInhalt = true; });
        if (hatInhalt) {
            return zeile;
        }
    }
    return 0;
}

int Blatt::spaltenanzahl() const
{
    int letzte = 0;
    for (int zeile = 1; zeile <= static_cast<int>(m_zeilen.size()); ++zeile) {
        fürJedeZelle(zeile, [&](int spalte, const Zellwert&) { letzte = std::max(letzte, spalte); });
    }
    return letzte;
}
