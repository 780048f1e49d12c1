#pragma once

#include "platform/elemente/Melder.h"

#include <functional>
#include <string>
#include <string_view>

/// The frame: the one top-level window whose pages the screens are. Lengths in twips. The program places it, a person
/// moves it, and either way it knows where it is:
///
///     rahmen.setzeLage(300, 600);                        // the program
///     rahmen.benutzerVerschiebt(450, 600);               // a surface reports a person's move
class Rahmen {
public:
    const std::string& titel() const { return m_titel; }
    void setzeTitel(std::string_view titel);

    bool istSichtbar() const { return m_sichtbar; }
    void zeige(bool sichtbar);

    double oben() const { return m_oben; }
    double links() const { return m_links; }
    double breite() const { return m_breite; }
    double höhe() const { return m_höhe; }
    bool istMaximiert() const { return m_maximiert; }

    /// The program's own placing.
    void setzeLage(double oben, double links);
    void setzeGröße(double breite, double höhe);
    void maximiere(bool maximiert);

    // doors: what the user does with the window
    void benutzerVerschiebt(double oben, double links);
    void benutzerÄndertGröße(double breite, double höhe);
    void benutzerMaximiert(bool maximiert);
    /// The close button of the border; true when the frame may close.
    bool benutzerSchließt();

    /// A resize, whoever did it (also by maximising and going back).
    std::function<void()> beiGrößenänderung;
    /// Asked on a close request from the border; false refuses.
    std::function<bool()> beiSchließwunsch;

    /// For the surface: caption, shown, place, size or maximised changed by the program.
    Melder<> geändert;

private:
    std::string m_titel;
    bool m_sichtbar = false;
    bool m_maximiert = false;
    double m_oben = 0;
    double m_links = 0;
    double m_breite = 0;
    double m_höhe = 0;
};
