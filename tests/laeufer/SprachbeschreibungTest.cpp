#include "sprache/Sprachbeschreibung.h"
#include "hilfen/Abnahme.h"
#include "sprache/Anweisungsformen.h"

namespace {

TEST(Sprachbeschreibung, DasDokumentHatDieWorteDesLäufers)
{
    vergleicheMitAbschnitt("docs/szenarien.md", "worte", beschreibeSprache());
}

TEST(Sprachbeschreibung, JedesWortSagtWasEsBedeutet)
{
    for (const auto& form : anweisungsformen()) {
        EXPECT_FALSE(form.bedeutung.empty()) << form.wort;
    }
}

TEST(Sprachbeschreibung, DieDreiWorteMitDenenFastAllesBeginntStehenVorn)
{
    const auto text = beschreibeSprache();
    EXPECT_LT(text.find("`klient "), text.find("`datei "));
    EXPECT_LT(text.find("`diagnose "), text.find("`starte`"));
}

} // namespace
