#include "import/AltKDSRegeln.h"

#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "import/Altfelder.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Exportspalten.h"
#include "satz/Klientenfelder.h"

#include <array>
#include <utility>

namespace {

constexpr auto null = "0"_t;
constexpr auto gesetzt = "2"_t;
constexpr auto fehler = "FEHLER"_t;

constexpr Wertepaar vermittCodes[]{{"0", "0"},   {"1", "1"},   {"2", "2"},  {"3", "3"},   {"15", "4"},
                                   {"18", "5"},  {"9", "7"},   {"6", "11"}, {"19", "13"}, {"20", "20"},
                                   {"21", "25"}, {"16", "26"}, {"17", "27"}};
constexpr Wertepaar auflagenCodes[]{{"0", "0"}, {"4", "0"}, {"1", "1"}, {"2", "2"}, {"5", "3"}, {"3", "4"}};
constexpr Wertepaar schuleCodes[]{{"0", "0"}, {"2", "2"}, {"3", "3"}, {"4", "4"},
                                  {"5", "5"}, {"6", "6"}, {"7", "6"}, {"8", "7"}};
constexpr Wertepaar wohnungCodes[]{{"0", "0"}, {"1", "1"}, {"2", "2"}, {"3", "3"},
                                   {"4", "4"}, {"5", "6"}, {"8", "8"}, {"9", "9"}};
constexpr Wertepaar erwerbCodes[]{{"0", "0"},   {"1", "1"},   {"15", "2"}, {"16", "2"}, {"6", "3"},
                                  {"7", "4"},   {"8", "5"},   {"9", "6"},  {"10", "8"}, {"11", "9"},
                                  {"12", "10"}, {"13", "11"}, {"14", "0"}};
constexpr Wertepaar artEndeCodes[]{{"0", "0"}, {"10", "0"}, {"1", "1"}, {"6", "4"},
                                   {"7", "5"}, {"8", "6"},  {"2", "7"}, {"9", "8"}};
constexpr Wertepaar problEndeCodes[]{{"0", "0"}, {"1", "0"}, {"2", "1"}, {"3", "2"}, {"4", "3"}, {"5", "4"}};
/// Main diagnoses that have no group in the new layout.
constexpr Wertepaar ohneGruppe[]{{"553", {}}, {"554", {}}, {"555", {}}, {"556", {}}, {"558", {}}};

Altregel fest(std::string_view text)
{
    return {.art = Regelart::Fest, .wert = text};
}

Altregel kopie(int spalte)
{
    return {.art = Regelart::Spalte, .spalte = spalte};
}

Altregel codes(int spalte, Werteliste liste, std::string_view sonst = fehler)
{
    return {.art = Regelart::Codes, .spalte = spalte, .codes = liste, .wert = sonst};
}

Altregel gleich(int spalte, std::string_view wert, int zweite = 0)
{
    return {.art = Regelart::Gleich, .spalte = spalte, .wert = wert, .zweite = zweite};
}

/// A row being built; what the older layout does not know is 0.
class Regelreihe {
public:
    explicit Regelreihe(std::size_t spalten) : m_regeln(spalten, fest(null)) {}

    void setze(int spalte, const Altregel& regel) { m_regeln.at(static_cast<std::size_t>(spalte - 1)) = regel; }
    /// At the column of the care field with the name.
    void setze(std::string_view feld, const Altregel& regel)
    {
        setze(feldAus(betreuungsfelder(), betreuungsfeld(feld)).spalte, regel);
    }
    /// At the columns of the care fields that differ by their number alone; `regel(nummer)` gives the rule.
    template <class F> void setzeReihe(std::string_view stamm, int von, int bis, F regel)
    {
        for (int nummer = von; nummer <= bis; ++nummer) {
            setze(verbinde(stamm, alsText(nummer)), regel(nummer));
        }
    }
    /// At the column of the field of the diagnosis record.
    void setzeDiagnose(int feld, const Altregel& regel) { setze(feldAus(diagnosefelder(), feld).spalte, regel); }

    std::vector<Altregel> nimmRegeln() { return std::move(m_regeln); }

private:
    std::vector<Altregel> m_regeln;
};

} // namespace

std::vector<Altregel> kernregeln()
{
    const auto leer = [](int) { return fest({}); };
    Regelreihe reihe(kernspalten().size());
    reihe.setze(exportspalte::tsnr, kopie(altspalte::tsnr));
    reihe.setze(exportspalte::kernID, kopie(2));
    reihe.setze(exportspalte::betrID, kopie(3));
    reihe.setze(exportspalte::kern::dauer, kopie(altspalte::kern::dauer));
    reihe.setze(feldAus(klientenfelder(), feld::kern::geburtsdatum).spalte, kopie(altspalte::kern::alter));
    reihe.setze(feldAus(klientenfelder(), feld::kern::geschlecht).spalte, kopie(altspalte::kern::geschlecht));
    reihe.setzeReihe("Zuvor"_t, 1, 18, leer);
    reihe.setzeReihe("Kinder"_t, 1, 2, leer);
    reihe.setzeReihe("LebenSit"_t, 0, 5, [](int nummer) { return kopie(63 + 2 * nummer); });
    for (const auto& [feld, regel] : std::initializer_list<std::pair<std::string_view, Altregel>>{
             {"BetrBeg"_t, kopie(altspalte::kern::beginn)},
             {"BetrEnd"_t, kopie(altspalte::kern::ende)},
             {"BetrGru"_t, kopie(16)},
             {"zuvorNULL"_t, kopie(18)},
             {"Wieder"_t, kopie(11)},
             {"Vermitt"_t, codes(17, vermittCodes, null)},
             {"Auflagen1"_t, codes(14, auflagenCodes)},
             {"Kosten1"_t, gleich(12, "1"_t)},
             {"Kosten2"_t, gleich(12, "2"_t)},
             {"Kosten3"_t, gleich(12, "46"_t)},
             {"Kosten4"_t, gleich(12, "47"_t)},
             {"Kosten5"_t, gleich(12, "48"_t)},
             {"Kosten9"_t, gleich(12, "45"_t)},
             {"Zuvor2"_t, kopie(30)},
             {"Zuvor5"_t, kopie(25)},
             {"Zuvor7"_t, kopie(36)},
             {"Zuvor9"_t, kopie(46)},
             {"FamSta"_t, kopie(60)},
             {"Partner"_t, kopie(61)},
             {"Nation"_t, fest({})},
             {"Schule"_t, codes(77, schuleCodes)},
             {"Wohnung1"_t, codes(75, wohnungCodes)},
             {"Wohnung3"_t, codes(76, wohnungCodes)},
             {"Erwerb1"_t, codes(78, erwerbCodes)},
             {"MasInt2"_t, gleich(93, gesetzt)},
             {"MasInt3"_t, gleich(87, gesetzt, 112)},
             {"MasInt5"_t, gleich(84, gesetzt)},
             {"MasInt6"_t, gleich(87, gesetzt)},
             {"MasInt9"_t, gleich(92, gesetzt)},
             {"MasExt2"_t, gleich(112, gesetzt)},
             {"MasExt3"_t, gleich(106, gesetzt, 93)},
             {"MasExt5"_t, gleich(103, gesetzt)},
             {"MasExt6"_t, gleich(106, gesetzt)},
             {"MasExt9"_t, gleich(111, gesetzt)},
             {"Kontakte"_t, {.art = Regelart::OhneNull, .spalte = 160}},
             {"ArtEnd1"_t, codes(161, artEndeCodes)},
             {"ArtEnd2"_t, {.art = Regelart::FührendeAcht, .spalte = 161}},
             {"ProblEnde"_t, codes(162, problEndeCodes)},
         }) {
        reihe.setze(feld, regel);
    }
    return reihe.nimmRegeln();
}

std::vector<Altregel> diagnoseregeln()
{
    using namespace feld::diag;
    constexpr std::array ersteSpalten{19, 25, 32, 39,  46,  53,  59,  65,  71,  77,
                                      83, 89, 95, 101, 107, 113, 119, 125, 131, 137};
    Regelreihe reihe(diagnosespalten().size());
    reihe.setze(exportspalte::tsnr, kopie(altspalte::tsnr));
    reihe.setze(exportspalte::kernID, kopie(2));
    reihe.setze(exportspalte::betrID, kopie(3));
    for (int gruppe = 1; const int spalte : ersteSpalten) { // kind of consumption, and the digits behind the class
        reihe.setzeDiagnose(antwort(gruppe, Konsumart), kopie(spalte));
        reihe.setzeDiagnose(antwort(gruppe++, ICDStelle4), kopie(spalte + 2));
    }
    for (const auto& [gruppe, regel] : {std::pair{21, kopie(147)}, std::pair{22, kopie(153)}, std::pair{23, kopie(159)},
                                        std::pair{geldspielautomaten, fest({})}, std::pair{29, kopie(142)}}) {
        reihe.setzeDiagnose(antwort(gruppe, ICDStelle4), regel);
    }
    reihe.setze(exportspalte::diag::hauptdiagnose,
                {.art = Regelart::Auszunehmen, .spalte = 4, .codes = ohneGruppe, .wert = null});
    reihe.setze(exportspalte::diag::alterErstkonsum, fest({}));
    for (int nummer = 1; nummer <= anzahlWeitereDiagnosen; ++nummer) {
        // of each four with a letter of their own the older layout fills two
        const bool fehlt = !diagnoseartVon(nummer).buchstabe.empty() && (nummer - 1) % 4 >= 2;
        reihe.setzeDiagnose(weitere(nummer), fehlt ? fest({}) : kopie(altspalte::diag::weitere + nummer - 1));
    }
    return reihe.nimmRegeln();
}
