#include "import/Satzbau.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace {

std::string betreuungssatz(std::vector<Feldanweisung> anweisungen)
{
    const Satzsicht kern("7;8", ';');
    const Satzsicht diagnose("", ';');
    return Satzbau(Satzbau::Art::Betreuung, std::move(anweisungen)).baue({kern, diagnose, 3, 4});
}

TEST(Satzbau, AFieldWithoutColumnTakesItsDefaultAndNotTheValueBefore)
{
    EXPECT_EQ(betreuungssatz({
                  {.blatt = 'K', .spalte = 1, .art = Feldart::kontakte},
                  {.art = Feldart::kinder, .vorgabe = "k.A."},
                  {.art = Feldart::option, .paare = {{"nein", "7"}}, .vorgabe = "keine Angaben"},
                  {.art = Feldart::text},
                  {.art = Feldart::datum, .vorgabe = "02.08.2007"},
                  {.blatt = 'K', .spalte = 2, .art = Feldart::zahl},
              }),
              "7·k.A.·keine Angaben··02.08.2007·8·"_t);
}

TEST(Satzbau, IdsAndTheMarkOfTheImportNeedNoColumn)
{
    EXPECT_EQ(betreuungssatz({{.art = Feldart::idKern, .vorgabe = "1"},
                              {.art = Feldart::idBetr, .vorgabe = "1"},
                              {.art = Feldart::memo}}),
              "3·4·?·"_t);
}

} // namespace
