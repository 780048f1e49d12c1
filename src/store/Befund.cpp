#include "store/Befund.h"

#include "satz/Satzgrenzen.h"

#include <algorithm>
#include <tuple>
#include <utility>

static_assert(satzgrenze::zeilenlänge == 32767 && satzgrenze::höchsteNummer == 32767,
              "the findings ZeileZuLang and SchlüsselAußerhalb name the old limit: write the new one there");

void Befundliste::melde(const Befundart& art, Fundort ort, std::string_view genauer, std::string_view folge)
{
    m_befunde.push_back({.art = art,
                         .ort = std::move(ort),
                         .text = genauer.empty() ? std::string(art.was) : verbinde(art.was, ": "_t, genauer),
                         .folge = std::string(folge.empty() ? art.folge : folge)});
}

std::vector<Befund> Befundliste::nimm()
{
    const auto rang = [](const Befund& befund) {
        return std::tuple(befund.ort.tabelle, befund.ort.zeile, befund.ort.feld);
    };
    std::ranges::stable_sort(m_befunde, {}, rang);
    return std::exchange(m_befunde, {});
}

std::string alsZitat(std::string_view wert)
{
    constexpr std::size_t höchstens = 40;
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char zeichen : wert.substr(0, höchstens)) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if (byte < 0x20U || byte == 0x7FU) {
            text += verbinde("\\x"_t, ziffern[byte / 16U], ziffern[byte % 16U]);
        } else {
            text.push_back(zeichen);
        }
    }
    return verbinde(text, wert.size() > höchstens ? "…\""_t : "\""_t);
}
