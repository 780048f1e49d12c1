#pragma once

#include "platform/elemente/Elemente.h"

/// The rules of the combo boxes that take typing.

/// Type-ahead of a combo box: the text left of the cursor with the key added (8: one character less) is
/// looked up as the start of an entry, without regard to case; the entry becomes the text, the cursor goes
/// behind the typed part, and the key is swallowed (0), found or not.
void ergänzeComboText(Auswahlfeld& feld, int& code);
/// Whether the text equals an entry exactly.
bool istInComboListe(const Auswahlfeld& feld);
/// As istInComboListe; on false the box turns red for the time of a message and gets the focus.
bool prüfeComboWert(Auswahlfeld& feld);
