#include "import/moImp3AltKDStoKDS.h"

#include "export/Satzsicht.h"
#include "import/AltKDSRegeln.h"
#include "import/Eingabedatei.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <algorithm>
#include <array>

namespace {

constexpr auto ja = "2"_t;
constexpr auto nein = "0"_t;

struct Kostenposition {
    std::string_view code;
    int position;
};
constexpr std::array kostenpositionen{Kostenposition{"1"_t, 1},  Kostenposition{"2"_t, 2},  Kostenposition{"46"_t, 3},
                                      Kostenposition{"47"_t, 4}, Kostenposition{"48"_t, 5}, Kostenposition{"45"_t, 9}};

int kostenposition(std::string_view code)
{
    const auto ort = std::find_if(kostenpositionen.begin(), kostenpositionen.end(),
                                  [&](const Kostenposition& p) { return p.code == code; });
    return ort == kostenpositionen.end() ? 0 : ort->position;
}

const Altcode* findeCode(const Altregel& regel, std::string_view alt)
{
    const auto ort =
        std::find_if(regel.codes.begin(), regel.codes.end(), [&](const Altcode& c) { return c.alt == alt; });
    return ort == regel.codes.end() ? nullptr : &*ort;
}

std::string_view spaltenwert(const Altregel& regel, const Satzsicht& zeile)
{
    const auto text = zeile.feld(regel.spalte);
    const auto wenn = [](bool bedingung) { return bedingung ? ja : nein; };
    switch (regel.art) {
    case Regelart::Fest:
        break;
    case Regelart::Spalte:
        return text;
    case Regelart::Codes:
        if (const auto* code = findeCode(regel, text)) {
            return code->neu;
        }
        break;
    case Regelart::Kosten:
        return wenn(kostenposition(text) == regel.position);
    case Regelart::Beide:
        return wenn(text == ja && (regel.zweite == 0 || zeile.feld(regel.zweite) == ja));
    case Regelart::OhneNull:
        return getrimmt(text) == "0" ? std::string_view{} : getrimmt(text);
    case Regelart::FührendeAcht:
        return wenn(führendeZahl(text) == 8);
    case Regelart::Auszunehmen:
        if (findeCode(regel, text) == nullptr) {
            return text;
        }
        break;
    }
    return regel.sonst;
}

/// Turns row after row, with the room of the one before.
class Umsetzer {
public:
    explicit Umsetzer(const std::vector<Altregel>& regeln) : m_regeln(regeln) {}

    const std::string& setzeUm(std::string_view alt)
    {
        m_alt.lies(alt, ',');
        m_neu.clear();
        for (const auto& regel : m_regeln) {
            m_neu.append(spaltenwert(regel, m_alt)).push_back(';');
        }
        return m_neu;
    }

private:
    const std::vector<Altregel>& m_regeln;
    Satzsicht m_alt;
    std::string m_neu;
};

void setzeDateiUm(Dateien& dateien, const std::filesystem::path& von, const std::filesystem::path& nach,
                  const std::vector<Altregel>& regeln)
{
    const Eingabedatei ein(dateien, von);
    const auto aus = dateien.schreibeNeu(nach);
    Umsetzer umsetzer(regeln);
    ein.fürJedeZeile([&](std::string_view zeile) { aus->zeile(umsetzer.setzeUm(zeile)); });
    aus->schließe();
}

} // namespace

std::string kernAltNachNeu(std::string_view zeile)
{
    return Umsetzer(kernregeln()).setzeUm(zeile);
}

std::string diagAltNachNeu(std::string_view zeile)
{
    return Umsetzer(diagnoseregeln()).setzeUm(zeile);
}

void moImp3AltKDStoKDS(Dateien& dateien, const std::filesystem::path& aKDSKern,
                       const std::filesystem::path& aKDSDiagnose, const std::filesystem::path& kdsKern,
                       const std::filesystem::path& kdsDiagnose)
{
    setzeDateiUm(dateien, aKDSKern, kdsKern, kernregeln());
    setzeDateiUm(dateien, aKDSDiagnose, kdsDiagnose, diagnoseregeln());
}
