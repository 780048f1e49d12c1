#include "Textvorrat.h"

#include <string_view>

namespace {

std::u32string langerText(Zufall& zufall)
{
    constexpr std::u32string_view vorrat = U"Ein längerer Text über dies und das; ";
    std::u32string text;
    const auto länge = static_cast<std::size_t>(zufall.zahl(200, 320));
    while (text.size() < länge) {
        text += vorrat;
    }
    return text;
}

} // namespace

std::u32string zufallstext(Zufall& zufall)
{
    if (zufall.trifft(4)) {
        return langerText(zufall);
    }
    static const std::vector<std::u32string> vorrat{
        U"",
        U"Müller-Lüdenscheidt",
        U"Ößler",
        U"mit · Trenner",
        U"Čapek Łódź",
        U"日本",
        U"zwei\nZeilen",
        U"¶ Absatz",
        U"\"zitiert\" \\",
        U" Rand ",
        U"offen",
        U"unbekannt",
        U"k.A.",
        U"ein\tTabulator",
        U"€ – „…“ ™",
        U"01.02.2003",
        U"·",
        U"¿",
        U"a;b;c",
        U"12345 Ort",
        U"Straße 7",
    };
    return zufall.eines(vorrat);
}

std::u32string zufallswert(Zufall& zufall)
{
    static const std::vector<std::u32string> vorrat{
        U"",      U"0",     U"1",    U"7",     U"12",    U"25",   U"99",
        U"100",   U"999",   U"1000", U"32768", U"-1",    U"k.A.", U"keine Angaben",
        U"1,5",   U" 3 ",   U"007",  U"2007",  U"10000", U"abc",  U"ja",
        U"32.1",  U"F10.2", U"G40",  U"A15.0", U"·",     U"12·3", U"F",
        U"F32.10"};
    return zufall.eines(vorrat);
}

std::u32string zufallstasten(Zufall& zufall, Tastenende ende)
{
    static const std::vector<std::u32string> harmlose{U"a",     U"ö",    U"7",      U"·",        U"ł",
                                                      U"k",     U"-",    U"{Rück}", U"{Entf}",   U"{Links}",
                                                      U"{Auf}", U"{Ab}", U"{Pos1}", U"{Rechts}", U"{Ende}"};
    static const std::vector<std::u32string> letzte{U"", U"", U"{Tab}", U"{Eingabe}", U"{Esc}"};
    std::u32string tasten;
    for (int rest = zufall.zahl(0, 4); rest > 0; --rest) {
        tasten += zufall.eines(harmlose);
    }
    tasten += ende == Tastenende::Beliebig && zufall.trifft(20) ? U" " : zufall.eines(letzte);
    return tasten.empty() ? U"{Tab}" : tasten;
}

Datum zufallsdatum(Zufall& zufall, const Datum& heute)
{
    const int tage = zufall.trifft(80) ? zufall.zahl(-60, 40) : zufall.zahl(-30000, 3000);
    return ausTageszahl(alsTageszahl(heute) + tage);
}
