#include "sprache/Argumentpruefung.h"

#include "sprache/Tastenfolge.h"
#include "sprache/Unicode.h"
#include "sprache/Zerlegung.h"

#include "platform/text/Datum.h"
#include "platform/text/Zahl.h"

#include <array>

namespace {

bool istAntwort(std::u32string_view text)
{
    return text == U"OK" || text == U"Abbrechen" || text == U"Ja" || text == U"Nein";
}

bool istDatum(std::u32string_view text)
{
    const auto datum = leseDatum(alsUtf8(text));
    return datum && alsDatumstext(*datum) == alsUtf8(text);
}

bool passt(Argumentart art, std::u32string_view text)
{
    switch (art) {
    case Argumentart::Zahl:
        return !text.empty() && text.find(U' ') == std::u32string_view::npos && leseGanzzahl64(alsUtf8(text));
    case Argumentart::Datum:
        return istDatum(text);
    case Argumentart::Element:
        return !text.empty();
    case Argumentart::Rahmen:
        return text == U"rahmen";
    case Argumentart::Tasten:
        return liesTastenfolge(text).has_value();
    case Argumentart::Antwort:
        return istAntwort(text);
    case Argumentart::Feldwert:
        return text.find(U'=') != std::u32string_view::npos && text.front() != U'=';
    case Argumentart::Text:
    case Argumentart::Dateiwahl:
        return true;
    }
    return true;
}

} // namespace

std::string benennung(Argumentart art)
{
    switch (art) {
    case Argumentart::Text:
        return "einen Text";
    case Argumentart::Zahl:
        return "eine ganze Zahl";
    case Argumentart::Datum:
        return "ein Datum TT.MM.JJJJ";
    case Argumentart::Element:
        return "den Namen eines Elements";
    case Argumentart::Rahmen:
        return "»rahmen«";
    case Argumentart::Tasten:
        return "Zeichen und Sondertasten wie {Rück}";
    case Argumentart::Antwort:
        return "OK, Abbrechen, Ja oder Nein";
    case Argumentart::Dateiwahl:
        return "einen Pfad oder »abbrechen«";
    case Argumentart::Feldwert:
        return "FELD=TEXT";
    }
    return {};
}

void prüfeArgument(Argumentart art, std::u32string_view text)
{
    if (!passt(art, text)) {
        throw Formfehler(benennung(art) + " statt »" + alsUtf8(text) + "«");
    }
}
