#pragma once

#include <string>
#include <string_view>

/// Whether the text can stand in further diagnosis `nummer` (1 to 12): empty, or two digits with up to two more
/// behind a point; from 9 on with any one character in front. The field delimiter never can.
bool istWeitereDiagnose(int nummer, std::string_view text);

/// What the user is told about a text that can't.
std::string meldungZuWeitererDiagnose(int nummer);
