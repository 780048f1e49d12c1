#include "sprache/Tastenfolge.h"

#include <algorithm>
#include <array>

namespace {

struct Sondertaste {
    std::u32string_view name;
    Taste::Art art;
};

constexpr std::array sondertasten{
    Sondertaste{U"{Rück}", Taste::Art::Rück},   Sondertaste{U"{Entf}", Taste::Art::Entf},
    Sondertaste{U"{Links}", Taste::Art::Links}, Sondertaste{U"{Rechts}", Taste::Art::Rechts},
    Sondertaste{U"{Auf}", Taste::Art::Auf},     Sondertaste{U"{Ab}", Taste::Art::Ab},
    Sondertaste{U"{Pos1}", Taste::Art::Pos1},   Sondertaste{U"{Ende}", Taste::Art::Ende},
    Sondertaste{U"{Tab}", Taste::Art::Tab},     Sondertaste{U"{Eingabe}", Taste::Art::Eingabe},
    Sondertaste{U"{Esc}", Taste::Art::Esc},
};

Tastendruck druckVon(char32_t zeichen)
{
    return zeichen == U'\n' ? Tastendruck{Taste::Art::Eingabe, 0} : Tastendruck{Taste::Art::Zeichen, zeichen};
}

} // namespace

std::optional<std::vector<Tastendruck>> liesTastenfolge(std::u32string_view text)
{
    std::vector<Tastendruck> tasten;
    while (!text.empty()) {
        if (text.front() != U'{' || text.find(U'}') == std::u32string_view::npos) {
            tasten.push_back(druckVon(text.front()));
            text.remove_prefix(1);
            continue;
        }
        const auto taste = std::find_if(sondertasten.begin(), sondertasten.end(),
                                        [&](const auto& t) { return text.starts_with(t.name); });
        if (taste == sondertasten.end()) {
            return std::nullopt;
        }
        tasten.push_back({taste->art, 0});
        text.remove_prefix(taste->name.size());
    }
    return tasten;
}
