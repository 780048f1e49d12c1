#include "platform/mappe/Blatt.h"

#include "platform/dateien/Zeilen.h"

#include <algorithm>

const Blatt::Zeile* Blatt::zeileWennDa(int zeile) const
{
    const auto stelle = static_cast<std::size_t>(zeile - 1);
    return stelle < m_zeilen.size() ? &m_zeilen[stelle] : nullptr;
}

Blatt::Zeile& Blatt::zeileFür(int zeile)
{
    if (m_zeilen.size() < static_cast<std::size_t>(zeile)) {
        m_zeilen.resize(static_cast<std::size_t>(zeile));
    }
    return m_zeilen[static_cast<std::size_t>(zeile - 1)];
}

const Spaltenkarte& Blatt::karte(int zeile) const
{
    const auto dahinter = std::upper_bound(m_bänder.begin(), m_bänder.end(), zeile,
                                           [](int gesucht, const Band& band) { return gesucht < band.vonZeile; });
    return std::prev(dahinter)->karte;
}

void Blatt::beginneBand(int zeile)
{
    const auto ort = std::lower_bound(m_bänder.begin(), m_bänder.end(), zeile,
                                      [](const Band& band, int gesucht) { return band.vonZeile < gesucht; });
    if (ort == m_bänder.end() || ort->vonZeile != zeile) {
        m_bänder.insert(ort, Band{zeile, karte(zeile)});
    }
}

void Blatt::setze(int zeile, int spalte, std::string_view text, Zelltyp typ)
{
    verweise(zeile, spalte, text.empty() ? text : m_eigeneTexte.emplace_back(text), typ);
}

void Blatt::verweise(int zeile, int spalte, std::string_view text, Zelltyp typ)
{
    const int ort = karte(zeile).ort(spalte);
    if (!text.empty() || !suche(zeile, spalte).text.empty()) {
        setzeEinzeln(zeileFür(zeile), {text, ort, typ});
    }
}

void Blatt::setzeEinzeln(Zeile& z, const Einzelzelle& zelle)
{
    const auto ort = std::lower_bound(z.zellen.begin(), z.zellen.end(), zelle.ort,
                                      [](const Einzelzelle& eine, int gesucht) { return eine.ort < gesucht; });
    if (ort != z.zellen.end() && ort->ort == zelle.ort) {
        *ort = zelle;
    } else {
        z.zellen.insert(ort, zelle);
    }
}

void Blatt::importiereText(int zeile, int spalte, std::string_view inhalt, Importregeln regeln)
{
    const auto teilung = static_cast<std::uint32_t>(m_teilungen.size());
    m_teilungen.push_back({std::move(regeln), Zelltyp::Allgemein});
    m_zeilen.reserve(m_zeilen.size() + zähleZeilen(inhalt) + static_cast<std::size_t>(zeile));
    Zeilen zeilen(inhalt);
    while (const auto text = zeilen.nächste()) {
        teile(zeile++, spalte, *text, teilung);
    }
}

void Blatt::textInSpalten(int vonZeile, int bisZeile, int spalte, char trennzeichen)
{
    const auto teilung = static_cast<std::uint32_t>(m_teilungen.size());
    m_teilungen.push_back({{trennzeichen, {}}, Zelltyp::AllgemeinMinusHinten});
    for (int zeile = std::min(vonZeile, bisZeile); zeile <= std::max(vonZeile, bisZeile); ++zeile) {
        teile(zeile, spalte, suche(zeile, spalte).text, teilung);
    }
}

void Blatt::teile(int zeile, int spalte, std::string_view text, std::uint32_t teilung)
{
    if (text.empty()) {
        return;
    }
    const char trennzeichen = m_teilungen[teilung].regeln.trennzeichen;
    const int felder = static_cast<int>(std::count(text.begin(), text.end(), trennzeichen)) + 1;
    Zeile& z = zeileFür(zeile);
    const Spaltenkarte& k = karte(zeile);
    const int ort = k.ort(spalte);
    if (!z.text.empty() || !k.istZusammenhängend(spalte, felder)) {
        löseAuf(z);
        for (int feld = 0; feld < felder; ++feld) {
            const std::size_t ende = text.find(trennzeichen);
            setzeEinzeln(z, {text.substr(0, ende), k.ort(spalte + feld),
                             m_teilungen[teilung].typ(static_cast<std::size_t>(feld))});
            text.remove_prefix(std::min(text.size(), ende == std::string_view::npos ? ende : ende + 1));
        }
        return;
    }
    std::erase_if(z.zellen, [&](const Einzelzelle& zelle) { return zelle.ort >= ort && zelle.ort < ort + felder; });
    z.text = text;
    z.ort = ort;
    z.teilung = teilung;
}

void Blatt::löseAuf(Zeile& z)
{
    std::vector<Einzelzelle> alle;
    fürJedenOrt(z, [&](int ort, std::string_view text, Zelltyp typ) { alle.push_back({text, ort, typ}); });
    z.zellen = std::move(alle);
    z.text = {};
}

void Blatt::löscheSpalte(int spalte)
{
    for (Band& band : m_bänder) {
        band.karte.lösche(spalte);
    }
}

void Blatt::löscheBereich(int zeileA, int spalteA, int zeileB, int spalteB)
{
    const auto [vonZeile, bisZeile] = std::minmax(zeileA, zeileB);
    const auto [vonSpalte, bisSpalte] = std::minmax(spalteA, spalteB);
    beginneBand(vonZeile);
    beginneBand(bisZeile + 1);
    for (Band& band : m_bänder) {
        if (band.vonZeile >= vonZeile && band.vonZeile <= bisZeile) {
            band.karte.lösche(vonSpalte, bisSpalte - vonSpalte + 1);
        }
    }
}

void Blatt::kommentiere(int zeile, int spalte, std::string_view text)
{
    m_kommentare[{zeile, karte(zeile).ort(spalte)}] = text;
}

Blatt::Fund Blatt::suche(int zeile, int spalte) const
{
    const Zeile* z = zeileWennDa(zeile);
    if (z == nullptr || spalte < 1) {
        return {};
    }
    const int ort = karte(zeile).ort(spalte);
    const auto einzeln = std::lower_bound(z->zellen.begin(), z->zellen.end(), ort,
                                          [](const Einzelzelle& eine, int gesucht) { return eine.ort < gesucht; });
    if (einzeln != z->zellen.end() && einzeln->ort == ort) {
        return {einzeln->text, einzeln->typ};
    }
    return z->text.empty() || ort < z->ort ? Fund{} : sucheFeld(*z, ort);
}

Blatt::Fund Blatt::sucheFeld(const Zeile& z, int ort) const
{
    const Teilung& teilung = m_teilungen[z.teilung];
    const auto feld = static_cast<std::size_t>(ort - z.ort);
    std::string_view rest = z.text;
    for (std::size_t davor = 0; davor < feld; ++davor) {
        const std::size_t ende = rest.find(teilung.regeln.trennzeichen);
        if (ende == std::string_view::npos) {
            return {};
        }
        rest.remove_prefix(ende + 1);
    }
    return {rest.substr(0, rest.find(teilung.regeln.trennzeichen)), teilung.typ(feld)};
}

Zellwert Blatt::zelle(int zeile, int spalte) const
{
    const Fund fund = suche(zeile, spalte);
    return leseZelle(fund.text, fund.typ);
}

std::optional<int> Blatt::spalteVon(int zeile, int ort) const
{
    const Spaltenkarte& k = karte(zeile);
    int spalte = 1;
    while (k.ort(spalte) < ort) {
        ++spalte;
    }
    return k.ort(spalte) == ort ? std::optional(spalte) : std::nullopt;
}

const std::string* Blatt::kommentar(int zeile, int spalte) const
{
    const auto ort = m_kommentare.find({zeile, karte(zeile).ort(spalte)});
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
