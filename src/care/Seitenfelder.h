#pragma once

#include "platform/elemente/Elemente.h"
#include "platform/elemente/Elementreihe.h"
#include "platform/elemente/triCtlJaNein.h"
#include "satz/Wertelisten.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The fields of a care page as one table. A field's place in the table is its place in the page's piece of
/// the record (from 1), so that loading, collecting and testing are walks over the table.
class Seitenfelder {
public:
    /// What an empty field of the record does to a number combo.
    enum class Leer { Übernehmen, LässtVorgabe };

    void fügeWahl(Auswahlfeld& feld, std::vector<std::string> liste);
    void fügeWahl(Auswahlfeld& feld, Werteliste liste);
    /// A typeable combo of "k.A." and the numbers from `von` to `bis`: gets the type-ahead, and is tested
    /// before OK.
    void fügeZahl(Auswahlfeld& feld, werte::Zahlenbereich bereich, Leer leer = Leer::Übernehmen);
    void fügeAntworten(Elementreihe<triCtlJaNein>& reihe);
    /// One field for the whole row of options: the index of the marked one, "0" for none.
    void fügeOptionen(Elementreihe<Optionsfeld>& reihe);

    /// Fills all lists; each combo shows its first entry, which is its default.
    void fülleListen();
    /// The fields take the piece in the order of the table; rules that hang on them run as they do for a
    /// person. An empty piece leaves the defaults.
    void lade(std::string_view stück);
    /// All values in the order of the table, each followed by the delimiter.
    std::string sammle() const;
    /// Tests the number combos; the first wrong one is marked and reported, and the answer is false.
    bool prüfeZahlen();

private:
    struct Wahl {
        Auswahlfeld* feld = nullptr;
        std::vector<std::string> liste;
        Leer leer = Leer::Übernehmen;
    };
    using Seitenfeld = std::variant<Wahl, triCtlJaNein*, Elementreihe<Optionsfeld>*>;

    static void nimm(const Wahl& wahl, std::string_view text);
    static void nimm(triCtlJaNein* antwort, std::string_view text);
    static void nimm(Elementreihe<Optionsfeld>* reihe, std::string_view text);
    static std::string wert(const Wahl& wahl);
    static std::string wert(const triCtlJaNein* antwort);
    static std::string wert(const Elementreihe<Optionsfeld>* reihe);

    std::vector<Seitenfeld> m_felder;
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
