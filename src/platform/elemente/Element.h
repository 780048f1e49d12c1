#pragma once

#include "platform/elemente/Elementbesucher.h"
#include "platform/elemente/Farbe.h"
#include "platform/elemente/Melder.h"
#include "platform/elemente/Taste.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class Element;

/// What elements live on: a screen (platform/bildschirm). It takes each as it is made and knows which has the focus.
class Elementträger {
public:
    virtual void nimmAuf(Element& element) = 0;
    virtual Element* fokus() const = 0;

protected:
    ~Elementträger() = default;
};

/// What every element of a screen has in common. An element is a value with a change notification: the
/// surface subscribes to `geändert` and draws; a person's action comes back through the doors (`klicke`,
/// `doppelklicke`, `taste`, and those of the kinds), which tests and scenarios use as well. The screen puts
/// its rules into the handlers (`beiKlick`, …).
///
/// An element is a member of its screen, to which its constructor makes it known:
///
///     Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t};
///     cmdOK.beiKlick = [this] { beiOK(); };              // the screen's rule
///     m_bleibt = cmdOK.geändert.abonniere([] { … });     // a surface draws what has changed
///     cmdOK.klicke();                                    // a surface, a test or a scenario presses
///
/// Doors do not test whether a person could reach the element (Bildschirm::istErreichbar tells that), and
/// they do not move the focus (Bildschirm::fokussiere does). All texts are code page.
class Element {
public:
    /// Registers with the screen under the name ("cmdOK", "optHDohne(2)"), in the order of declaration.
    Element(Elementträger& träger, std::string_view name);
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    virtual ~Element() = default;

    const std::string& name() const { return m_name; }
    Elementträger& träger() const { return m_träger; }

    bool istSichtbar() const { return m_sichtbar; }
    void zeige(bool sichtbar = true);
    void verberge() { zeige(false); }

    bool istFrei() const { return m_frei; }
    void gibFrei(bool frei = true);
    void sperre() { gibFrei(false); }

    /// Text, caption or value, as a scenario reads it.
    virtual std::string text() const { return {}; }

    const std::string& hinweis() const { return m_hinweis; }
    void setzeHinweis(std::string_view hinweis);

    /// The background colour, white where none was set.
    Farbe hintergrund() const { return m_hintergrund.value_or(farbe::weiß); }
    bool hatHintergrund() const { return m_hintergrund.has_value(); }
    void setzeHintergrund(Farbe farbe);

    /// Whether it takes the keyboard focus at all.
    virtual bool nimmtFokus() const { return true; }
    /// Whether it is the element of its screen that has the focus.
    bool hatFokus() const;

    virtual void besuche(Elementbesucher& besucher) = 0;

    // doors
    virtual void klicke() { rufe(beiKlick); }
    virtual void doppelklicke() { rufe(beiDoppelklick); }
    /// A key. False when the element has no use for it (the screen then has: Return, Escape, Tab).
    virtual bool taste(const Taste& taste);
    /// Ends an input that is under way; asked before the focus leaves and on Return. False when it cannot be taken:
    /// the focus stays.
    virtual bool schließeAb() { return true; }

    // rules
    std::function<void()> beiKlick;
    std::function<void()> beiDoppelklick;
    /// Asked before the focus leaves; false keeps the focus here and stops the action that would move it.
    std::function<bool()> beiVerlassen;

    /// Told after every change that a surface has to draw.
    Melder<> geändert;
    /// Told when the focus comes or goes (true: it came).
    virtual void fokusGewechselt(bool /*gekommen*/) {}
    /// The program puts the focus where it is already, as after a message about the field.
    virtual void fokusErneuert() {}

protected:
    void meldeÄnderung() { geändert.melde(); }

private:
    Elementträger& m_träger;
    std::string m_name;
    bool m_sichtbar = true;
    bool m_frei = true;
    std::string m_hinweis;
    std::optional<Farbe> m_hintergrund;
};

/// What every kind of elements derives from: a visitor meets it as what it is.
///
///     class Liste : public Elementart<Liste> { … };
template <class Art> class Elementart : public Element {
public:
    using Element::Element;

    void besuche(Elementbesucher& besucher) override { besucher.besuche(static_cast<Art&>(*this)); }
};

/// The same for kinds whose text is a caption, which the program alone writes.
template <class Art> class ElementMitText : public Elementart<Art> {
public:
    ElementMitText(Elementträger& träger, std::string_view name, std::string_view text = {})
        : Elementart<Art>(träger, name), m_text(text)
    {}

    std::string text() const override { return m_text; }
    void setzeText(std::string_view text)
    {
        if (m_text != text) {
            m_text = text;
            this->meldeÄnderung();
        }
    }

private:
    std::string m_text;
};
