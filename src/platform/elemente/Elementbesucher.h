#pragma once

class Ankreuzfeld;
class Auswahlfeld;
class Beschriftung;
class Bild;
class Bildlaufleiste;
class Datumsfeld;
class Fläche;
class Fortschrittsbalken;
class Liste;
class Menüeintrag;
class Optionsfeld;
class Schaltfläche;
class Textfeld;
class triCtlJaNein;

/// One method per kind of element: how a surface draws it, how a runner acts on it. A new kind does not compile before
/// every visitor knows it.
///
///     class Zeichner : public Elementbesucher { void besuche(Bild& feld) override { … } … };
///     element.besuche(zeichner);
class Elementbesucher {
public:
    virtual ~Elementbesucher() = default;
    virtual void besuche(Ankreuzfeld& feld) = 0;
    virtual void besuche(Auswahlfeld& feld) = 0;
    virtual void besuche(Beschriftung& feld) = 0;
    virtual void besuche(Bild& feld) = 0;
    virtual void besuche(Bildlaufleiste& feld) = 0;
    virtual void besuche(Datumsfeld& feld) = 0;
    virtual void besuche(Fläche& feld) = 0;
    virtual void besuche(Fortschrittsbalken& feld) = 0;
    virtual void besuche(Liste& feld) = 0;
    virtual void besuche(Menüeintrag& feld) = 0;
    virtual void besuche(Optionsfeld& feld) = 0;
    virtual void besuche(Schaltfläche& feld) = 0;
    virtual void besuche(Textfeld& feld) = 0;
    virtual void besuche(triCtlJaNein& feld) = 0;
};
