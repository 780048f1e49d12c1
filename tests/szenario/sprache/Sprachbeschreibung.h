#pragma once

#include <string>

/// The words of the language with arguments and meaning as tables in Markdown (UTF-8), from the forms that the runner
/// itself reads by; docs/szenarien.md holds them.
std::string beschreibeSprache();
