#include "platform/elemente/Elementbesucher.h"

#include "platform/elemente/Elemente.h"
#include "platform/elemente/triCtlJaNein.h"

void Ankreuzfeld::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Auswahlfeld::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Beschriftung::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Bild::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Bildlaufleiste::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Datumsfeld::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Fläche::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Fortschrittsbalken::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Liste::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Menüeintrag::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Optionsfeld::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Schaltfläche::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void Textfeld::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}

void triCtlJaNein::besuche(Elementbesucher& besucher)
{
    besucher.besuche(*this);
}
