#include "import/moImp3AltKDStoKDS.h"

#include "export/Satzsicht.h"
#include "import/AltKDSRegeln.h"
#include "import/Eingabedatei.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

namespace {

constexpr auto ja = "2"_t;
constexpr auto nein = "0"_t;

std::string_view spaltenwert(const Altregel& regel, const Satzsicht& zeile)
{
    const auto text = zeile.feld(regel.spalte);
    const auto* code = werte::codeZu(regel.codes, text);
    const auto wenn = [](bool bedingung) { return bedingung ? ja : nein; };
    switch (regel.art) {
    case Regelart::Fest:
        break;
    case Regelart::Spalte:
        return text;
    case Regelart::Codes:
        return code == nullptr ? regel.wert : *code;
    case Regelart::Gleich:
        return wenn(text == regel.wert && (regel.zweite == 0 || zeile.feld(regel.zweite) == regel.wert));
    case Regelart::OhneNull:
        return getrimmt(text) == "0" ? std::string_view{} : getrimmt(text);
    case Regelart::FührendeAcht:
        return wenn(führendeZahl(text) == 8);
    case Regelart::Auszunehmen:
        return code == nullptr ? text : regel.wert;
    }
    return regel.wert;
}

std::string setzeUm(std::string_view zeile, const std::vector<Altregel>& regeln)
{
    const Satzsicht alt(zeile, ',');
    std::string neu;
    for (const auto& regel : regeln) {
        neu.append(spaltenwert(regel, alt)).push_back(';');
    }
    return neu;
}

void setzeDateiUm(Dateien& dateien, const std::filesystem::path& von, const std::filesystem::path& nach,
                  const std::vector<Altregel>& regeln)
{
    const Eingabedatei ein(dateien, von);
    const auto aus = dateien.schreibeNeu(nach);
    ein.fürJedeZeile([&](std::string_view zeile) { aus->zeile(setzeUm(zeile, regeln)); });
    aus->schließe();
}

} // namespace

std::string kernAltNachNeu(std::string_view zeile)
{
    return setzeUm(zeile, kernregeln());
}

std::string diagAltNachNeu(std::string_view zeile)
{
    return setzeUm(zeile, diagnoseregeln());
}

void moImp3AltKDStoKDS(Dateien& dateien, const std::filesystem::path& aKDSKern,
                       const std::filesystem::path& aKDSDiagnose, const std::filesystem::path& kdsKern,
                       const std::filesystem::path& kdsDiagnose)
{
    setzeDateiUm(dateien, aKDSKern, kdsKern, kernregeln());
    setzeDateiUm(dateien, aKDSDiagnose, kdsDiagnose, diagnoseregeln());
}
