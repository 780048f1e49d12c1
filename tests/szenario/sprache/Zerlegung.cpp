#include "sprache/Zerlegung.h"

#include "platform/text/Zeichensatz.h"

#include <algorithm>
#include <optional>

namespace {

bool istLeerzeichen(char32_t zeichen)
{
    return zeichen == U' ' || zeichen == U'\t';
}

void überspringe(std::u32string_view& rest)
{
    const auto anfang = std::find_if_not(rest.begin(), rest.end(), istLeerzeichen);
    rest.remove_prefix(static_cast<std::size_t>(anfang - rest.begin()));
}

std::optional<unsigned> hexziffer(char32_t zeichen)
{
    constexpr std::u32string_view klein = U"0123456789abcdef";
    constexpr std::u32string_view groß = U"0123456789ABCDEF";
    for (const auto ziffern : {klein, groß}) {
        if (const auto ort = ziffern.find(zeichen); ort != std::u32string_view::npos) {
            return static_cast<unsigned>(ort);
        }
    }
    return std::nullopt;
}

char32_t liesHex(std::u32string_view ziffern)
{
    const auto erste = ziffern.empty() ? std::nullopt : hexziffer(ziffern[0]);
    const auto zweite = ziffern.size() < 2 ? std::nullopt : hexziffer(ziffern[1]);
    if (!erste || !zweite) {
        throw Formfehler("zwei Hexziffern hinter \\x");
    }
    return zeichensatz::unicodeVon(static_cast<char>(static_cast<unsigned char>(*erste * 16 + *zweite)));
}

/// Reads from behind the opening quote to the closing one.
std::u32string nimmZitat(std::u32string_view& rest, Umbruch umbruch)
{
    std::size_t ende = 0;
    while (ende < rest.size() && rest[ende] != U'"') {
        ende += rest[ende] == U'\\' ? 2 : 1;
    }
    if (ende >= rest.size()) {
        throw Formfehler("schließendes Anführungszeichen");
    }
    std::u32string text = löseFluchtfolgen(rest.substr(0, ende), umbruch);
    rest.remove_prefix(ende + 1);
    if (!rest.empty() && !istLeerzeichen(rest.front())) {
        throw Formfehler("Leerzeichen oder Zeilenende hinter dem Anführungszeichen");
    }
    return text;
}

/// Length of `name="` at the start of the text, 0 when it does not stand there.
std::size_t zitatvorspann(std::u32string_view rest)
{
    if (rest.front() == U'"') {
        return 1;
    }
    const auto ende =
        std::find_if(rest.begin(), rest.end(), [](char32_t z) { return istLeerzeichen(z) || z == U'"' || z == U'='; });
    const auto länge = static_cast<std::size_t>(ende - rest.begin());
    return länge > 0 && rest.substr(länge, 2) == U"=\"" ? länge + 2 : 0;
}

} // namespace

std::u32string_view nimmWort(std::u32string_view& rest)
{
    überspringe(rest);
    const auto ende = std::find_if(rest.begin(), rest.end(), istLeerzeichen);
    const auto wort = rest.substr(0, static_cast<std::size_t>(ende - rest.begin()));
    rest.remove_prefix(wort.size());
    return wort;
}

std::vector<std::u32string> zerlegeArgumente(std::u32string_view rest, Umbruch umbruch)
{
    std::vector<std::u32string> argumente;
    for (überspringe(rest); !rest.empty(); überspringe(rest)) {
        const std::size_t vorspann = zitatvorspann(rest);
        if (vorspann == 0) {
            argumente.emplace_back(nimmWort(rest));
            continue;
        }
        std::u32string text{rest.substr(0, vorspann - 1)};
        rest.remove_prefix(vorspann);
        argumente.push_back(text + nimmZitat(rest, umbruch));
    }
    return argumente;
}

std::u32string löseFluchtfolgen(std::u32string_view text, Umbruch umbruch)
{
    std::u32string ergebnis;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t folge = i + 1 < text.size() ? text[i + 1] : U'\0';
        if (text[i] != U'\\') {
            ergebnis.push_back(text[i]);
        } else if (folge == U'n') {
            ergebnis.push_back(U'\n');
            ++i;
        } else if (folge == U'r' && umbruch == Umbruch::Einzelzeichen) {
            ergebnis.push_back(U'\r');
            ++i;
        } else if (folge == U'"' || folge == U'\\') {
            ergebnis.push_back(folge);
            ++i;
        } else if (folge == U'x') {
            ergebnis.push_back(liesHex(text.substr(i + 2)));
            i += 3;
        } else {
            ergebnis.push_back(U'\\');
        }
    }
    return ergebnis;
}
