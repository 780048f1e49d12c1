#pragma once

#include "store/Bestandspfade.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the checker can find. One row of the table in Befund.cpp each.
enum class Befundart {
    ZeilenendenFremd,
    ZeilenendenGemischt,
    ZeilenendeFehlt,
    ZeileLeer,
    ZeileZuLang,
    FelderZuWenige,
    FelderZuViele,
    SchlüsselKeineZahl,
    SchlüsselAußerhalb,
    SchlüsselForm,
    SchlüsselDoppelt,
    BetreuungOhneKlient,
    BetreuungOhneDiagnose,
    DiagnoseOhneBetreuung,
    StatusUnbekannt,
    StatusVeraltet,
    DatumUngültig,
    DatumZweistellig,
    EndeVorBeginn,
    Überschneidung,
    MehrereOffen,
    WertUnbekannt,
    BitfeldKeineZahl,
    BitfeldFremd,
    BitfeldNegativ,
    BitFehlt,
    Steuerzeichen,
    ZeichenUnbelegt,
    VermerkGanz,
    VermerkUnvollständig,
    Arbeitsdatei,
    AlteArbeitsdatei,
    Importordner,
    SicherungAngefangen,
    SicherungUnvollendet
};

/// A notice is told and doesn't count: the program itself leaves such a state, or nothing can come of it.
enum class Gewicht { Fehler, Hinweis };

struct Befundregel {
    Befundart art;
    Gewicht gewicht;
    std::string_view was;
    std::string_view folge; ///< what the program will do with it
};

std::span<const Befundregel> befundregeln();
const Befundregel& regelFür(Befundart art);

/// Where: a line of a table, its field if it is about one; or another file or folder by its name.
struct Fundort {
    std::optional<Tabelle> tabelle;
    std::string datei;
    std::size_t zeile = 0; ///< 0: the file as a whole
    int feld = 0;          ///< 0: the line as a whole
};

/// All texts in the code page.
struct Befund {
    Befundart art;
    Fundort ort;
    std::string feldname;
    std::string text;
    std::string folge;

    bool istHinweis() const { return regelFür(art).gewicht == Gewicht::Hinweis; }
};

/// Collects findings. `genauer` goes behind the rule's text, `folge` takes the place of the rule's own.
class Befundliste {
public:
    void melde(Befundart art, Fundort ort, std::string_view genauer = {}, std::string_view folge = {});
    /// In order of file, line and field; the list is empty then.
    std::vector<Befund> nimm();

private:
    std::vector<Befund> m_befunde;
};

/// The value as a report shows it: in quotes, cut, control characters as their code.
std::string alsZitat(std::string_view wert);
