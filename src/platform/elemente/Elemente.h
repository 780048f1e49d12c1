#pragma once

// The kinds of elements; see Element.h for what they share. What the program sets (`setzeText`, `setze`, `fülle`) tells
// no rule, what a person does (`klicke`, `wähle`, `gibEin`, `taste`) tells one; a check box and an answer field tell
// `beiÄnderung` either way. Screen and name come first, then what the kind needs:
//
//     Auswahlfeld comboJahr{*this, "comboJahr"_t, Auswahlfeld::Art::Tippbar};
//     comboJahr.fülle({"2006", "2007"}, "2006");         // list and text
//     comboJahr.beiWahl = [this] { zeigeJahr(); };       // after a person has picked

#include "platform/elemente/Datumsfeld.h"
#include "platform/elemente/Element.h"
#include "platform/text/Text.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

/// A label. Clickable where a screen gives it a rule (the rows of the diagnosis listing).
class Beschriftung : public ElementMitText<Beschriftung> {
public:
    using ElementMitText::ElementMitText;

    bool nimmtFokus() const override { return false; }

    /// How a listing draws the row of the label.
    enum class Zeilenart { Gewöhnlich, Hauptdiagnose, Markiert };
    Zeilenart zeilenart() const { return m_zeilenart; }
    void setzeZeilenart(Zeilenart art);

private:
    Zeilenart m_zeilenart = Zeilenart::Gewöhnlich;
};

/// A push button. "&" in the caption marks the mnemonic letter.
class Schaltfläche : public ElementMitText<Schaltfläche> {
public:
    enum class Rolle { Gewöhnlich, Haupt, Gefahr, Füller, Weg, Decke, Gedrückt };

    Schaltfläche(Elementträger& träger, std::string_view name, std::string_view text = {},
                 Rolle rolle = Rolle::Gewöhnlich)
        : ElementMitText(träger, name, text), m_rolle(rolle)
    {}

    Rolle rolle() const { return m_rolle; }
    /// A cover without a text has nothing to read out.
    bool nimmtFokus() const override { return m_rolle != Rolle::Decke || !text().empty(); }
    bool taste(const Taste& taste) override;

private:
    Rolle m_rolle;
};

enum class Zeilenzahl { Einzeilig, Mehrzeilig };
inline constexpr Zeilenzahl Mehrzeilig = Zeilenzahl::Mehrzeilig;
inline constexpr Zeilenzahl Einzeilig = Zeilenzahl::Einzeilig;

/// A text box. In one of several lines a line break is carriage return and line feed. Its editing keys are the
/// surface's own; what they make of the text comes in through `gibEin`.
class Textfeld : public Elementart<Textfeld> {
public:
    Textfeld(Elementträger& träger, std::string_view name, Zeilenzahl zeilen = Einzeilig, std::size_t höchstlänge = 0)
        : Elementart(träger, name), m_zeilen(zeilen), m_höchstlänge(höchstlänge)
    {}

    std::string text() const override { return m_text; }
    void setzeText(std::string_view text);
    bool istMehrzeilig() const { return m_zeilen == Mehrzeilig; }
    std::size_t höchstlänge() const { return m_höchstlänge; }
    /// Cursor as a number of characters to its left.
    std::size_t schreibmarke() const { return m_schreibmarke; }

    /// The user's text replaces the old one (typed or pasted); the text is code page already (nimmÄnderung).
    void gibEin(std::string_view text, std::size_t schreibmarke);
    void fokusGewechselt(bool gekommen) override;

    std::function<void()> beiÄnderung;

private:
    std::string m_text;
    Zeilenzahl m_zeilen;
    std::size_t m_höchstlänge;
    std::size_t m_schreibmarke = 0;
};

/// A combo box: a list and a text. Choose-only, unless `Tippbar`; it shows any text the program gives it,
/// in the list or not.
///
/// Keys: up and down pick the entry before or after. In a choose-only box Home and End pick the first and
/// the last, a letter the next entry that begins with it. In a typeable box left, right, Home and End move
/// the cursor, and backspace and characters go to `beiTastendruck` (the type-ahead), which decides. When the focus
/// comes, the whole text of a typeable box is selected with the cursor before it, so that the first key begins anew.
class Auswahlfeld : public Elementart<Auswahlfeld> {
public:
    enum class Art { NurWahl, Tippbar };

    Auswahlfeld(Elementträger& träger, std::string_view name, Art art = Art::NurWahl)
        : Elementart(träger, name), m_art(art)
    {}

    std::string text() const override { return m_text; }
    /// Shows the text; cursor to its start. Tells no rule.
    void setzeText(std::string_view text);
    const std::vector<std::string>& liste() const { return m_liste; }
    /// Replaces the list; the text stays.
    void setzeListe(std::vector<std::string> liste);
    /// List and text at once.
    void fülle(std::vector<std::string> liste, std::string_view vorgabe);
    bool istTippbar() const { return m_art == Art::Tippbar; }
    /// For arrays of boxes of both kinds; before the screen is first shown.
    void setzeArt(Art art) { m_art = art; }

    std::size_t schreibmarke() const { return m_schreibmarke; }
    /// Puts the cursor there; nothing is selected any more.
    void setzeSchreibmarke(std::size_t ort);
    bool istGanzGewählt() const { return m_ganzGewählt; }

    /// The user picks the entry (from 0).
    void wähle(std::size_t eintrag);
    /// The user's own text, past any key handling (pasting).
    void gibEin(std::string_view text, std::size_t schreibmarke);
    bool taste(const Taste& taste) override;
    void fokusGewechselt(bool gekommen) override;
    void fokusErneuert() override;

    /// After the user has picked an entry (also with the keys).
    std::function<void()> beiWahl;
    /// A key press of a typeable box: code 8 for backspace, else the character; what is left in `code` at
    /// the end is put in as usual, 0 swallows it.
    std::function<void(int& code)> beiTastendruck;

    /// While the message about a wrong value stands, and the box has to be red.
    bool istFalsch() const { return hatHintergrund() && hintergrund() == farbe::rot; }

private:
    bool tasteNurWahl(const Taste& taste);
    bool tasteTippbar(const Taste& taste);
    bool bewegeCursor(const Taste& taste);
    void wähleNachbar(bool vor);
    void weicheAuswahl();
    void setzeEin(int code);

    Art m_art;
    std::string m_text;
    std::vector<std::string> m_liste;
    std::size_t m_schreibmarke = 0;
    bool m_ganzGewählt = false;
};

/// Option buttons of which at most one is marked; the group unmarks the others.
class Optionsfeld;
class Optionsgruppe {
public:
    void füge(Optionsfeld& feld) { m_felder.push_back(&feld); }
    void markiereNur(const Optionsfeld& feld);

private:
    std::vector<Optionsfeld*> m_felder;
};

/// An option button. A click (or Space) marks it. Arrow keys move the focus within the group; they mark as
/// well, unless the group was told that a mark has consequences (`pfeileMarkieren` = false).
class Optionsfeld : public ElementMitText<Optionsfeld> {
public:
    using ElementMitText::ElementMitText;

    bool istAn() const { return m_an; }
    /// Marks or unmarks; marking unmarks the others of the group. Tells no rule.
    void setze(bool an);
    void trittBei(Optionsgruppe& gruppe);
    bool pfeileMarkieren() const { return m_pfeileMarkieren; }
    void setzePfeileMarkieren(bool an) { m_pfeileMarkieren = an; }

    /// Marks and tells `beiKlick`.
    void klicke() override;
    bool taste(const Taste& taste) override;

    /// Backspace or Delete on the option, where the screen has a use for it.
    std::function<void()> beiLöschtaste;

private:
    bool m_an = false;
    bool m_pfeileMarkieren = true;
    Optionsgruppe* m_gruppe = nullptr;
};

/// A check box. `beiÄnderung` is told of every change, the program's own too.
class Ankreuzfeld : public ElementMitText<Ankreuzfeld> {
public:
    using ElementMitText::ElementMitText;

    bool istAn() const { return m_an; }
    void setze(bool an);
    void klicke() override { setze(!m_an); }
    bool taste(const Taste& taste) override;

    std::function<void()> beiÄnderung;

private:
    bool m_an = false;
};

class Fortschrittsbalken : public Elementart<Fortschrittsbalken> {
public:
    using Elementart::Elementart;

    int kleinstes() const { return m_kleinstes; }
    int größtes() const { return m_größtes; }
    int wert() const { return m_wert; }
    void setzeBereich(int kleinstes, int größtes);
    /// A new value; what is drawn follows it, or the share of the work that is done (0 to 1) where that is told,
    /// because the steps that the value counts take very different times.
    void setzeWert(int wert, std::optional<double> anteil = std::nullopt);
    /// The share goes on within the step; the value stays.
    void setzeAnteil(double anteil);
    double anteil() const;
    std::string text() const override { return std::to_string(m_wert); }
    bool nimmtFokus() const override { return false; }

private:
    int m_kleinstes = 0;
    int m_größtes = 100;
    int m_wert = 0;
    std::optional<double> m_anteil;
};

class Bildlaufleiste : public Elementart<Bildlaufleiste> {
public:
    using Elementart::Elementart;

    int kleinstes() const { return m_kleinstes; }
    int größtes() const { return m_größtes; }
    int wert() const { return m_wert; }
    int kleinerSchritt() const { return m_kleinerSchritt; }
    int großerSchritt() const { return m_großerSchritt; }
    void setzeBereich(int kleinstes, int größtes, int kleinerSchritt, int großerSchritt);
    /// Also the user's door; tells `beiÄnderung` when the value changes.
    void setzeWert(int wert);
    std::string text() const override { return std::to_string(m_wert); }
    bool taste(const Taste& taste) override;

    std::function<void()> beiÄnderung;

private:
    int m_kleinstes = 0;
    int m_größtes = 1;
    int m_wert = 0;
    int m_kleinerSchritt = 1;
    int m_großerSchritt = 1;
};

/// A frame that holds others (`frameVorne`); heights and place in twips, for the scrolled listing.
class Fläche : public Elementart<Fläche> {
public:
    using Elementart::Elementart;

    double höhe() const { return m_höhe; }
    void setzeHöhe(double höhe);
    double oben() const { return m_oben; }
    void setzeOben(double oben);
    bool nimmtFokus() const override { return false; }

    std::function<void()> beiGrößenänderung;

private:
    double m_höhe = 0;
    double m_oben = 0;
};

/// A list of rows with columns; one row selected at most. A row is one text whose cells are separated by
/// `trenner`, so that ten thousand clients are ten thousand small texts and no object per cell.
class Liste : public Elementart<Liste> {
public:
    Liste(Elementträger& träger, std::string_view name, std::initializer_list<std::string_view> spalten = {})
        : Elementart(träger, name), m_spalten(spalten.begin(), spalten.end())
    {}

    const std::vector<std::string>& spalten() const { return m_spalten; }
    std::size_t anzahl() const { return m_zeilen.size(); }
    bool istLeer() const { return m_zeilen.empty(); }

    /// Replaces all rows; nothing is selected, no sort stays.
    void setzeZeilen(std::vector<std::string> zeilen);
    /// The row, counted from 1, cells joined by `trenner`.
    const std::string& zeile(std::size_t nummer) const { return m_zeilen.at(nummer - 1); }
    /// The cell; row and column from 1.
    std::string_view zelle(std::size_t zeile, std::size_t spalte) const;

    /// The selected row, 0 for none.
    std::size_t auswahl() const { return m_auswahl; }
    void wähle(std::size_t nummer);
    /// Selects and scrolls into view.
    void wähleUndZeige(std::size_t nummer);

    /// The column (from 1) of the last header click since the rows were read, 0 for none; for the arrow.
    std::size_t sortierteSpalte() const { return m_sortierteSpalte; }
    /// One sort, ascending, as text without case, umlauts as their base letters, stable; the selection
    /// stays with its row.
    void sortiereNach(std::size_t spalte);

    // doors
    void klickeZeile(std::size_t nummer);
    /// The double click proper; the single click before it comes from klickeZeile.
    void doppelklickeZeile(std::size_t nummer);
    /// Nothing without a selected row.
    void doppelklicke() override;
    void klickeKopf(std::size_t spalte);
    bool taste(const Taste& taste) override;

    std::function<void(std::size_t spalte)> beiKopfklick;
    /// A key before the list itself moves; true swallows it.
    std::function<bool(const Taste&)> beiTastendruck;
    /// Told when the rows themselves have changed (after setzeZeilen and a sort).
    Melder<> zeilenGeändert;
    /// Told when the selected row is to be scrolled into view.
    Melder<> inSicht;

private:
    std::vector<std::string> m_spalten;
    std::vector<std::string> m_zeilen;
    std::size_t m_auswahl = 0;
    std::size_t m_sortierteSpalte = 0;
};

class Menüeintrag : public ElementMitText<Menüeintrag> {
public:
    using ElementMitText::ElementMitText;

    bool nimmtFokus() const override { return false; }
};

/// A picture of the program's own, by the name of its file among the program's resources.
class Bild : public Elementart<Bild> {
public:
    Bild(Elementträger& träger, std::string_view name, std::string_view quelle = {})
        : Elementart(träger, name), m_quelle(quelle)
    {}
    const std::string& quelle() const { return m_quelle; }
    bool nimmtFokus() const override { return false; }

private:
    std::string m_quelle;
};
