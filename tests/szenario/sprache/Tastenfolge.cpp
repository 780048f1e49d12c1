#include "sprache/Tastenfolge.h"

#include <algorithm>
#include <array>

namespace {

struct Sondertaste {
    std::u32string_view name;
    Taste::Art art;
};

constexpr std::array sondertasten{
    Sondertaste{U"Rück", Taste::Art::Rück},   Sondertaste{U"Entf", Taste::Art::Entf},
    Sondertaste{U"Links", Taste::Art::Links}, Sondertaste{U"Rechts", Taste::Art::Rechts},
    Sondertaste{U"Auf", Taste::Art::Auf},     Sondertaste{U"Ab", Taste::Art::Ab},
    Sondertaste{U"Pos1", Taste::Art::Pos1},   Sondertaste{U"Ende", Taste::Art::Ende},
    Sondertaste{U"Tab", Taste::Art::Tab},     Sondertaste{U"Eingabe", Taste::Art::Eingabe},
    Sondertaste{U"Esc", Taste::Art::Esc},     Sondertaste{U"F1", Taste::Art::F1},
    Sondertaste{U"F4", Taste::Art::F4},
};

Tastendruck druckVon(char32_t zeichen)
{
    return zeichen == U'\n' ? Tastendruck{.art = Taste::Art::Eingabe}
                            : Tastendruck{.art = Taste::Art::Zeichen, .zeichen = zeichen};
}

/// Takes the word from the front of the name, if it stands there.
bool nimm(std::u32string_view& name, std::u32string_view wort)
{
    const bool da = name.starts_with(wort);
    name.remove_prefix(da ? wort.size() : 0);
    return da;
}

/// What stands in braces: modifiers, then a special key or, behind a modifier, a character.
std::optional<Tastendruck> liesTaste(std::u32string_view name)
{
    Tastendruck druck;
    bool mit = true;
    while (mit) {
        const bool umschalt = nimm(name, U"Umschalt+");
        const bool strg = nimm(name, U"Strg+");
        const bool alt = nimm(name, U"Alt+");
        mit = umschalt || strg || alt;
        druck.umschalt = druck.umschalt || umschalt;
        druck.strg = druck.strg || strg;
        druck.alt = druck.alt || alt;
    }
    const auto ort =
        std::find_if(sondertasten.begin(), sondertasten.end(), [&](const auto& t) { return t.name == name; });
    if (ort != sondertasten.end()) {
        druck.art = ort->art;
        return druck;
    }
    if (name.size() != 1 || !(druck.umschalt || druck.strg || druck.alt)) {
        return std::nullopt;
    }
    druck.zeichen = name.front();
    return druck;
}

} // namespace

std::vector<std::u32string_view> sondertastennamen()
{
    std::vector<std::u32string_view> namen;
    for (const auto& taste : sondertasten) {
        namen.push_back(taste.name);
    }
    return namen;
}

std::optional<std::vector<Tastendruck>> liesTastenfolge(std::u32string_view text)
{
    std::vector<Tastendruck> tasten;
    while (!text.empty()) {
        const auto zu = text.front() == U'{' ? text.find(U'}') : std::u32string_view::npos;
        if (zu == std::u32string_view::npos) {
            tasten.push_back(druckVon(text.front()));
            text.remove_prefix(1);
            continue;
        }
        const auto taste = liesTaste(text.substr(1, zu - 1));
        if (!taste) {
            return std::nullopt;
        }
        tasten.push_back(*taste);
        text.remove_prefix(zu + 1);
    }
    return tasten;
}
