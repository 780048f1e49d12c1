#pragma once

#include "platform/umgebung/Meldung.h"

#include <string_view>

/// The words of the scenario language for boxes and their answers (UTF-8).

std::string_view wortFür(Symbol symbol);
std::string_view wortFür(Knöpfe knöpfe);
std::string_view wortFür(Antwort antwort);
/// The answer with the word; the parser lets only the four through.
Antwort antwortVon(std::u32string_view wort);
