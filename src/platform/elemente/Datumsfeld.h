#pragma once

#include "platform/elemente/Element.h"
#include "platform/text/Datum.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// A date input: its value is always a valid day of the calendar.
///
/// What a person types is a text beside that value (`getippt`) until it is read: when the field is left, on Return and
/// before an arrow changes a part of it. A text that is no date is never dropped without a word: it stays, the focus
/// stays, and `beanstandet` says what is wrong, which the surface shows beside the field. Escape brings the old date
/// back. The whole text is selected when the focus comes by key or from the program, with the cursor before it,
/// so that what is typed begins anew.
///
/// The keys of Taste::klapptAuf open and close the calendar; its own come here too, so that every surface has the same.
/// Those that edit the text are the surface's; what they make of it comes in through `gibEin` and `setzeStelle`.
///
///     Datumsfeld DTPickerVon{*this, "DTPickerVon"_t};
///     DTPickerVon.heute = [] { return zustand().umgebung.heute(); };
///     DTPickerVon.setzeDatum({2007, 8, 2});
class Datumsfeld : public Elementart<Datumsfeld> {
public:
    using Elementart::Elementart;

    Datum datum() const { return m_datum; }
    std::string text() const override { return alsDatumstext(m_datum); }
    void setzeDatum(const Datum& datum);
    /// Struck out while an open end stands beside it.
    bool istDurchgestrichen() const { return m_durchgestrichen; }
    void streicheDurch(bool ja);

    /// What the field shows: the date, or the text that is being typed.
    std::string anzeige() const { return m_getippt.value_or(text()); }
    /// Cursor, and the other end of the selection (the same place without one).
    std::size_t schreibmarke() const { return m_schreibmarke; }
    std::size_t anker() const { return m_anker; }
    void setzeStelle(std::size_t schreibmarke, std::size_t anker);
    /// The person's text (typed or pasted). Other characters than digits and points (and blanks, which go) are not
    /// taken.
    void gibEin(std::string_view text, std::size_t schreibmarke);
    /// What was wrong with the last input, for the moment of `beanstandet`.
    const std::string& beanstandung() const { return m_beanstandung; }

    /// The day that the open calendar stands on; nothing while it is closed.
    std::optional<Datum> kalendertag() const { return m_kalendertag; }
    void öffneKalender();
    void schließeKalender();

    /// The user picks the date.
    void wähle(const Datum& datum);
    bool taste(const Taste& taste) override;
    bool schließeAb() override;
    void fokusGewechselt(bool gekommen) override;
    void fokusErneuert() override;

    std::function<void()> beiWahl;
    /// The day whose year completes a date that is typed without one.
    std::function<Datum()> heute;
    Melder<> beanstandet;

private:
    std::optional<Datum> gelesen() const;
    void beanstande(std::string_view text);
    void wähleAlles();
    bool istGanzGewählt() const;
    void verstelle(int schritte);
    bool tasteDesKalenders(const Taste& taste);
    void stelleKalender(const Datum& tag);

    Datum m_datum{2000, 1, 1};
    bool m_durchgestrichen = false;
    std::optional<std::string> m_getippt;
    std::size_t m_schreibmarke = 0;
    std::size_t m_anker = 0;
    std::optional<Datum> m_kalendertag;
    std::string m_beanstandung;
};
