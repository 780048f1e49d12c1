#include "import/Anweisungsdatei.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <algorithm>
#include <string_view>

namespace {

struct Artname {
    std::string_view name;
    Spaltenanweisungsart art;
};

constexpr std::array artnamen{
    Artname{"wert"_t, Spaltenanweisungsart::Wert},
    Artname{"option"_t, Spaltenanweisungsart::Option},
    Artname{"betend"_t, Spaltenanweisungsart::Betreuungsende},
    Artname{"icdpsy"_t, Spaltenanweisungsart::IcdZusatz},
    Artname{"lebSit"_t, Spaltenanweisungsart::LebSit},
    Artname{"lebSitLEER"_t, Spaltenanweisungsart::LebSitLeer},
    Artname{"erstkos"_t, Spaltenanweisungsart::Kostenträger},
    Artname{"icd0000"_t, Spaltenanweisungsart::Icd0000},
    Artname{"betDau"_t, Spaltenanweisungsart::Dauer},
};

Spaltenanweisungsart artVon(std::string_view name)
{
    const auto ort = std::find_if(artnamen.begin(), artnamen.end(), [&](const Artname& a) { return a.name == name; });
    return ort == artnamen.end() ? Spaltenanweisungsart::Unbekannt : ort->art;
}

/// Takes one value after the other from the text.
class Werteleser {
public:
    Werteleser(std::string_view text, const std::filesystem::path& pfad) : m_rest(text), m_pfad(pfad) {}

    std::string nächster()
    {
        if (m_zuEnde) {
            scheitere("sie hat zu wenige Werte"_t);
        }
        if (m_rest.starts_with(',')) { // nearly all values are empty
            m_rest.remove_prefix(1);
            ++m_nummer;
            return {};
        }
        überspringeLeerzeichen();
        std::string wert = m_rest.starts_with('"') ? inAnführung() : bisTrennung();
        überspringeLeerzeichen();
        nimmTrennung();
        ++m_nummer;
        return wert;
    }

    [[noreturn]] void scheitere(std::string_view grund) const
    {
        throw Laufzeitfehler(verbinde("Die Anweisungsdatei \""_t, pfadtext(m_pfad),
                                      "\" ist nicht zu gebrauchen, Wert "_t, std::to_string(m_nummer + 1), ": "_t,
                                      grund));
    }

private:
    std::string bisTrennung()
    {
        const auto wert = m_rest.substr(0, m_rest.find_first_of(",\r\n"));
        m_rest.remove_prefix(wert.size());
        return std::string(getrimmt(wert));
    }

    std::string inAnführung()
    {
        std::string wert;
        m_rest.remove_prefix(1);
        while (true) {
            const auto ende = m_rest.find('"');
            if (ende == std::string_view::npos) {
                scheitere("ein Anführungszeichen fehlt"_t);
            }
            wert.append(m_rest.substr(0, ende));
            m_rest.remove_prefix(ende + 1);
            if (!m_rest.starts_with('"')) {
                return wert;
            }
            wert.push_back('"');
            m_rest.remove_prefix(1);
        }
    }

    void überspringeLeerzeichen() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(' '), m_rest.size())); }

    void nimmTrennung()
    {
        if (m_rest.empty()) {
            m_zuEnde = true;
        } else if (m_rest.starts_with("\r\n")) {
            m_rest.remove_prefix(2);
        } else if (m_rest.front() == ',' || m_rest.front() == '\r' || m_rest.front() == '\n') {
            m_rest.remove_prefix(1);
        } else {
            scheitere("hinter dem Anführungszeichen steht noch etwas"_t);
        }
    }

    std::string_view m_rest;
    const std::filesystem::path& m_pfad;
    std::size_t m_nummer = 0;
    bool m_zuEnde = false;
};

Spaltenanweisung leseEine(Werteleser& leser)
{
    Spaltenanweisung anweisung;
    const auto quelle = leseGanzzahl16(leser.nächster());
    if (!quelle) {
        leser.scheitere("die Quelle ist keine Zahl"_t);
    }
    anweisung.quelle = *quelle;
    anweisung.art = artVon(leser.nächster());
    for (auto& [text, ziel] : anweisung.paare) {
        text = leser.nächster();
        ziel = leser.nächster();
    }
    return anweisung;
}

} // namespace

std::vector<Spaltenanweisung> leseSpaltenanweisungen(Dateien& dateien, const std::filesystem::path& pfad,
                                                     std::size_t anzahl)
{
    const auto inhalt = dateien.lies(pfad);
    Werteleser leser(inhalt->text(), pfad);
    std::vector<Spaltenanweisung> anweisungen;
    anweisungen.reserve(anzahl);
    for (std::size_t i = 0; i < anzahl; ++i) {
        anweisungen.push_back(leseEine(leser));
    }
    return anweisungen;
}
