#pragma once

#include "umgebung/Scheitern.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Comparisons that say what was expected and what was found; all throw Scheitern. Texts are code page,
/// `was` is UTF-8.

/// The text with every line break (CR LF, CR, LF) as a line feed.
std::string mitEinfachenUmbrüchen(std::string_view text);

void vergleicheText(std::string_view was, std::string_view erwartet, std::string_view gefunden);
void vergleicheTeil(std::string_view was, std::string_view erwarteterTeil, std::string_view gefunden);
void vergleicheZahl(std::string_view was, std::int64_t erwartet, std::int64_t gefunden);
/// List by list, naming the first entry that differs.
void vergleicheListe(std::string_view was, const std::vector<std::string>& erwartet,
                     const std::vector<std::string>& gefunden);
/// The bytes of a file, naming the first line and field that differ.
void vergleicheInhalt(std::string_view erwartet, std::string_view gefunden);
