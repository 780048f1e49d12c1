#include "zustand/Comboregeln.h"

#include "platform/bildschirm/Bildschirm.h"
#include "platform/text/Text.h"
#include "zustand/Zustand.h"

#include <algorithm>

namespace {

std::string getippterAnfang(const Auswahlfeld& feld, int code)
{
    constexpr int rücktaste = 8;
    std::string anfang = feld.text().substr(0, feld.schreibmarke());
    if (code != rücktaste) {
        anfang.push_back(static_cast<char>(code));
    } else if (!anfang.empty()) {
        anfang.pop_back();
    }
    return anfang;
}

} // namespace

void ergänzeComboText(Auswahlfeld& feld, int& code)
{
    const auto anfang = klein(getippterAnfang(feld, code));
    code = 0;
    const auto& liste = feld.liste();
    const auto ort =
        std::ranges::find_if(liste, [&](const std::string& eintrag) { return klein(eintrag).starts_with(anfang); });
    if (ort != liste.end()) {
        feld.setzeText(*ort);
        feld.setzeSchreibmarke(anfang.size());
    }
}

bool istInComboListe(const Auswahlfeld& feld)
{
    return std::ranges::find(feld.liste(), feld.text()) != feld.liste().end();
}

bool prüfeComboWert(Auswahlfeld& feld)
{
    if (istInComboListe(feld)) {
        return true;
    }
    feld.setzeHintergrund(farbe::rot);
    zeigeMeldung("Der Wert im markierten Feld ist falsch und muß vor dem Speichern korrigiert werden."_t);
    feld.setzeHintergrund(farbe::weiß);
    bildschirmVon(feld).setzeFokus(&feld);
    return false;
}
