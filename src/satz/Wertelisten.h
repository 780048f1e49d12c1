#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The value lists of the core data set: every text that a field can hold, with its code in the yearly
/// export and the import. Each list stands here once; screens, export and import read it. All texts are
/// stored letter for letter, misspellings included.
struct Wertepaar {
    std::string_view text;
    std::string_view code;
    bool frühere = false; ///< an older spelling: records may hold it and the export knows its code, but it is neither
                          ///< offered nor written any more; it stands behind the spelling of today
};

using Werteliste = std::span<const Wertepaar>;

namespace werte {

extern const Werteliste kurz; ///< k.A., nein, ja
extern const Werteliste lang; ///< keine Angaben, nein, ja
extern const Werteliste geschlecht;
extern const Werteliste betrGru;
extern const Werteliste angeho;
extern const Werteliste problem;
extern const Werteliste vermitt;
extern const Werteliste auflagen1;
extern const Werteliste auflagen2;
extern const Werteliste substitut;
extern const Werteliste famSta;
extern const Werteliste partner;
extern const Werteliste wohnung;
extern const Werteliste schule;
extern const Werteliste ausbild;
extern const Werteliste erwerb;
extern const Werteliste schulden; ///< "bis 10.000 €" with the blank
extern const Werteliste test;     ///< HIV and hepatitis B
extern const Werteliste hepatitisC;
extern const Werteliste artEnd1;
extern const Werteliste artEnd2;
extern const Werteliste problEnde;
extern const Werteliste konsumart; ///< keine Angaben, Injektion, …
extern const Werteliste icdZusatz; ///< digits 4 and 5 of F10 to F19: texts as the dialogue shows them, "10 (Schädlicher
                                   ///< Gebrauch)", code "10"; without "k.A."
extern const Werteliste essstörung; ///< digit of F50: "0 (Anorexia nervosa)", code "0"; without "k.A."

/// The whole numbers that a number field takes beside "k.A.".
struct Zahlenbereich {
    int von;
    int bis;
};

inline constexpr Zahlenbereich maßnahmen{0, 99}; ///< former treatments
inline constexpr Zahlenbereich kinder{0, 98};
inline constexpr int kinderOhneAngabe = 99; ///< code of "k.A." in the export
static_assert(kinder.bis < kinderOhneAngabe, "a number of children would be read as not given");
inline constexpr Zahlenbereich kontakte{1, 999};  ///< a care without any contact is none
inline constexpr Zahlenbereich unterhalt{0, 12};  ///< main livelihood, 0 for none marked
inline constexpr Zahlenbereich konsumtage{0, 30}; ///< of the last thirty
inline constexpr Zahlenbereich alter{1, 99};

/// The texts in order, for the list of a combo box; without older spellings.
std::vector<std::string> texte(Werteliste liste);
/// `vorne`, then the whole numbers of the range: the lists of the number combos.
std::vector<std::string> zahlen(std::string_view vorne, Zahlenbereich bereich);
/// The code of the text (exact comparison), or nullptr.
const std::string_view* codeZu(Werteliste liste, std::string_view text);
/// The text of the code (exact comparison), or nullptr; never an older spelling.
const std::string_view* textZu(Werteliste liste, std::string_view code);

} // namespace werte
