#pragma once

#include "platform/elemente/Element.h"

#include <cstddef>

/// The three-valued answer field: "k.A.", "ja", "nein", one label (`lblOne`) that shows the answer.
///
/// A click goes k.A. → ja → nein → k.A.; left and right arrow go one step back and forward in that circle.
/// Up and down only move the focus in the column of answers, which is the surface's business. Each value has
/// its background: k.A. red, ja white, nein grey.
///
///     Elementreihe<triCtlJaNein> triJaNeinKosten{*this, "triJaNeinKosten"_t, 1, 9};
///     triJaNeinKosten(1).setzeText("ja"_t);
class triCtlJaNein : public Elementart<triCtlJaNein> {
public:
    triCtlJaNein(Elementträger& träger, std::string_view name);

    /// The value. Writing "ja", "nein" or "k.A." takes it, any other text gives "k.A."; the comparison is
    /// exact. A write that changes nothing tells no `beiÄnderung`.
    std::string text() const override;
    void setzeText(std::string_view text);

    /// The next value, then DblClick (as the control always did).
    void klicke() override;
    bool taste(const Taste& taste) override;
    void fokusGewechselt(bool gekommen) override;

    /// The colour that tells the focus: (99,99,204) with it, (36,0,66) without.
    Farbe randfarbe() const { return m_randfarbe; }

    /// The answer has changed, whoever changed it.
    std::function<void()> beiÄnderung;

private:
    void setzeStelle(std::size_t stelle);
    void färbe();

    std::size_t m_stelle = 0;
    Farbe m_randfarbe;
};
