#pragma once

#include "platform/text/Text.h"
#include "store/Bestandspfade.h"

#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A notice is told and doesn't count: the program itself leaves such a state, or nothing can come of it.
enum class Gewicht { Fehler, Hinweis };

/// A kind of finding. Told apart by its words.
struct Befundart {
    std::string_view was;
    std::string_view folge; ///< what the program will do with it
    Gewicht gewicht = Gewicht::Fehler;

    auto operator<=>(const Befundart&) const = default;
};

/// What the checker can find.
namespace befundart {

inline constexpr auto endetImFehler = "endet beim Lesen mit einem Laufzeitfehler"_t;
inline constexpr auto unverändert = "wird unverändert angezeigt und exportiert"_t;
inline constexpr auto wirdEntfernt = "wird beim nächsten Start entfernt"_t;
inline constexpr auto wirdBerichtigt = "wird beim nächsten Start berichtigt"_t;
inline constexpr auto neuschreiben = "wird gelesen; das nächste Neuschreiben der Tabelle berichtigt es"_t;
inline constexpr auto bleibt = "bleibt, wie es ist"_t;

// the lines of a table
inline constexpr Befundart ZeilenendenFremd{"die Zeilen enden nicht mit CR LF"_t, neuschreiben};
inline constexpr Befundart ZeilenendenGemischt{"die Zeilenenden sind gemischt"_t, neuschreiben};
inline constexpr Befundart ZeilenendeFehlt{"der letzten Zeile fehlt das Zeilenende"_t,
                                           "wird gelesen; das nächste Schreiben ergänzt es"_t};
inline constexpr Befundart ZeileLeer{"leere Zeile"_t, endetImFehler};
inline constexpr Befundart ZeileZuLang{"die Zeile ist länger als 32767 Zeichen"_t, endetImFehler};
inline constexpr Befundart FelderZuWenige{"zu wenige Felder"_t, "was fehlt, gilt als leer"_t};
inline constexpr Befundart FelderZuViele{"zu viele Felder"_t,
                                         "was zuviel ist, wird nicht gelesen, ein OK läßt es weg"_t};
inline constexpr Befundart Steuerzeichen{"Steuerzeichen"_t, bleibt};
inline constexpr Befundart ZeichenUnbelegt{"Zeichen, das die Codepage nicht kennt"_t, bleibt, Gewicht::Hinweis};

// keys, and what the records of the tables say of each other
inline constexpr Befundart SchlüsselKeineZahl{"die Nummer ist keine Zahl"_t, endetImFehler};
inline constexpr Befundart SchlüsselAußerhalb{"die Nummer liegt nicht zwischen 1 und 32767"_t, endetImFehler};
inline constexpr Befundart SchlüsselForm{"die Nummer steht nicht als reine Zahl da"_t,
                                         "wird gelesen; der Status des Klienten wird danach falsch bestimmt"_t};
inline constexpr Befundart SchlüsselDoppelt{"die Nummer kommt schon vor"_t,
                                            "gelesen wird die erste Zeile, ein OK macht alle gleich"_t};
inline constexpr Befundart BetreuungOhneKlient{"zu dieser Betreuung gibt es keinen Klienten"_t,
                                               "wird nicht angezeigt und nicht exportiert"_t};
inline constexpr Befundart BetreuungOhneDiagnose{
    "zu dieser Betreuung gibt es keine Diagnosezeile"_t,
    "wird nicht exportiert; ein OK auf die Betreuung legt die Diagnosezeile an"_t};
inline constexpr Befundart DiagnoseOhneBetreuung{
    "zu dieser Diagnosezeile gibt es keine Betreuung"_t,
    "wird nicht angezeigt und nicht exportiert; eine neue Betreuung mit der Nummer ersetzt sie"_t};
inline constexpr Befundart StatusUnbekannt{"der Status ist weder o noch a noch leer"_t, wirdBerichtigt};
inline constexpr Befundart StatusVeraltet{"der Status paßt nicht zu den Betreuungen"_t, wirdBerichtigt,
                                          Gewicht::Hinweis};
inline constexpr Befundart EndeVorBeginn{"die Betreuung endet vor ihrem Beginn"_t, unverändert};
inline constexpr Befundart Überschneidung{"die Betreuung überschneidet sich mit einer anderen des Klienten"_t,
                                          unverändert};
inline constexpr Befundart MehrereOffen{"der Klient hat mehr als eine offene Betreuung"_t, unverändert};

// the values of one record
inline constexpr Befundart DatumUngültig{"kein gültiges Datum"_t, {}}; ///< what becomes of it the place tells
inline constexpr Befundart DatumZweistellig{"die Jahreszahl hat nicht vier Stellen"_t,
                                            "wird beim nächsten Start ergänzt"_t};
inline constexpr Befundart WertUnbekannt{"diesen Wert hat keine Liste"_t, unverändert};
inline constexpr Befundart BitfeldKeineZahl{"das Bitfeld ist keine ganze Zahl"_t,
                                            "die Diagnoseseite endet mit einem Laufzeitfehler"_t};
inline constexpr Befundart BitfeldFremd{"das Bitfeld hat Bits, zu denen es keinen Problembereich gibt"_t,
                                        "wird nicht angezeigt"_t};
inline constexpr Befundart BitfeldNegativ{"das Bitfeld ist negativ"_t,
                                          "auch Problembereiche ohne Angaben werden angezeigt"_t, Gewicht::Hinweis};
inline constexpr Befundart BitFehlt{"ein Problembereich mit Angaben hat kein Bit"_t, "wird trotzdem angezeigt"_t,
                                    Gewicht::Hinweis};

// what a run that was broken off has left beside the tables
inline constexpr Befundart VermerkGanz{
    "eine gespeicherte Eingabe ist noch nicht in allen Tabellen"_t,
    "wird beim nächsten Start vollendet, andere Befunde können sich damit erledigen"_t};
inline constexpr Befundart VermerkUnvollständig{"unvollständiger Vermerk über eine Eingabe"_t, wirdEntfernt};
inline constexpr Befundart Arbeitsdatei{"Arbeitsdatei einer abgebrochenen Eingabe"_t, wirdEntfernt};
inline constexpr Befundart AlteArbeitsdatei{"Arbeitsdatei einer älteren Fassung des Programms"_t,
                                            "bleibt liegen; darin kann der Stand einer Tabelle stehen"_t};
inline constexpr Befundart Importordner{"Arbeitsordner eines abgebrochenen Imports"_t, wirdEntfernt};
inline constexpr Befundart SicherungAngefangen{"angefangene Sicherung"_t, wirdEntfernt};
inline constexpr Befundart SicherungUnvollendet{
    "beiseite gelegter Stand einer Eingabe, die nicht vollendet werden konnte"_t, "bleibt liegen"_t, Gewicht::Hinweis};

} // namespace befundart

/// Where: a line of a table, its field if it is about one; or another file or folder by its name.
struct Fundort {
    std::optional<Tabelle> tabelle;
    std::size_t zeile = 0; ///< 0: the file as a whole
    int feld = 0;          ///< 0: the line as a whole
    std::string datei{};
};

/// All texts in the code page.
struct Befund {
    Befundart art;
    Fundort ort;
    std::string text;
    std::string folge;

    bool istHinweis() const { return art.gewicht == Gewicht::Hinweis; }
};

/// Collects findings. `genauer` goes behind the words of the kind, `folge` takes the place of its own.
class Befundliste {
public:
    void melde(const Befundart& art, Fundort ort, std::string_view genauer = {}, std::string_view folge = {});
    /// In order of file, line and field; the list is empty then.
    std::vector<Befund> nimm();

private:
    std::vector<Befund> m_befunde;
};

/// The value as a report shows it: in quotes, cut, control characters as their code.
std::string alsZitat(std::string_view wert);
