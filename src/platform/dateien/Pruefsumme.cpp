#include "platform/dateien/Pruefsumme.h"

#include <bit>
#include <utility>

namespace {

constexpr std::size_t schritt = 8;

/// One step: every bit of both numbers takes part in the product's upper half, which is turned down for the next.
constexpr std::uint64_t mische(std::uint64_t summe, std::uint64_t wort)
{
    return std::rotl((summe ^ wort) * 0x9FB21C651E98DF25U, 29) + 0x2545F4914F6CDD1DU;
}

std::uint64_t wortAb(const char* ort)
{
    std::uint64_t wort = 0;
    for (std::size_t i = 0; i < schritt; ++i) { // compilers make one load of it
        wort |= std::uint64_t{static_cast<unsigned char>(ort[i])} << (8 * i);
    }
    return wort;
}

} // namespace

void Prüfsumme::nimm(std::string_view bytes)
{
    const auto nimmEines = [&] {
        m_rest |= std::uint64_t{static_cast<unsigned char>(bytes.front())} << (8 * (m_länge % schritt));
        bytes.remove_prefix(1);
        if (++m_länge % schritt == 0) {
            m_summe = mische(m_summe, std::exchange(m_rest, 0));
        }
    };
    while (!bytes.empty() && m_länge % schritt != 0) {
        nimmEines();
    }
    for (; bytes.size() >= schritt; bytes.remove_prefix(schritt), m_länge += schritt) {
        m_summe = mische(m_summe, wortAb(bytes.data()));
    }
    while (!bytes.empty()) {
        nimmEines();
    }
}

std::uint64_t Prüfsumme::wert() const
{
    return mische(mische(m_summe, m_rest), m_länge);
}

std::uint64_t Prüfsumme::von(std::string_view bytes)
{
    Prüfsumme summe;
    summe.nimm(bytes);
    return summe.wert();
}
