#pragma once

#include "platform/elemente/Elemente.h"
#include "platform/elemente/Elementreihe.h"
#include "platform/elemente/triCtlJaNein.h"
#include "satz/Satzaufbau.h"

#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The fields of a care page as one table. An element is bound to a field by the name that the field has in the record;
/// list, default, range of numbers and the place in the page's piece of the record come from there. Loading, collecting
/// and testing are walks over the table.
///
///     tafel.füge("FamSta"_t, comboFamsta);
///     tafel.füge("Kosten"_t, triJaNeinKosten);           // "Kosten1" to "Kosten9"
class Seitenfelder {
public:
    explicit Seitenfelder(const std::vector<Satzfeld>& satz = betreuungsfelder()) : m_satz(satz) {}

    /// A combo of a field of numbers takes typing: it gets the type-ahead, and is tested before OK.
    void füge(std::string_view name, Auswahlfeld& feld);
    /// Each of the row is bound to the field with its index behind the name.
    void füge(std::string_view name, Elementreihe<Auswahlfeld>& reihe);
    void füge(std::string_view name, Elementreihe<triCtlJaNein>& reihe);
    /// One field for the whole row of options: the index of the marked one, "0" for none.
    void füge(std::string_view name, Elementreihe<Optionsfeld>& reihe);

    /// Fills all lists; each combo shows its first entry, which is its default. The fields have to be a piece of the
    /// record without a gap (std::logic_error).
    void fülleListen();
    /// The fields take the piece in the order of the record; rules that hang on them run as they do for a
    /// person. An empty piece leaves the defaults.
    void lade(std::string_view stück);
    /// All values in the order of the record, each followed by the delimiter.
    std::string sammle() const;
    /// Tests the number combos; the first wrong one is marked and reported, and the answer is false.
    bool prüfeZahlen();

private:
    struct Wahl {
        Auswahlfeld* feld = nullptr;
        const Satzfeld* satzfeld = nullptr;
    };
    struct Antwort {
        triCtlJaNein* feld;
        Werteliste werte;
    };
    using Seitenfeld = std::variant<Wahl, Antwort, Elementreihe<Optionsfeld>*>;

    int stelle(std::string_view name) const;
    static void nimm(const Wahl& wahl, std::string_view text);
    static void nimm(const Antwort& antwort, std::string_view text);
    static void nimm(Elementreihe<Optionsfeld>* reihe, std::string_view text);
    static std::string wert(const Wahl& wahl);
    static std::string wert(const Antwort& antwort);
    static std::string wert(const Elementreihe<Optionsfeld>* reihe);

    const std::vector<Satzfeld>& m_satz;
    std::map<int, Seitenfeld> m_felder; ///< by their position in the record
};

/// Every "k.A." becomes "nein", an answer given stays.
void setzeOhneAngabeAufNein(Elementreihe<triCtlJaNein>& reihe);
/// Makes the button the "!" of the column of answers, hint and click.
void richteFüllerEin(Schaltfläche& füller, Elementreihe<triCtlJaNein>& reihe);

/// The texts of a row of labels, from its first index on.
template <class Texte> void beschrifte(Elementreihe<Beschriftung>& reihe, const Texte& texte)
{
    int i = reihe.von();
    for (const std::string_view text : texte) {
        reihe(i++).setzeText(text);
    }
}
