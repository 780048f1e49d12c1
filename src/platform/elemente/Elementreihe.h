#pragma once

#include "platform/text/Text.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

class Elementträger;

/// An array of elements with the index range of its design. Each is registered with the screen under its own index, and
/// what follows the range goes to each:
///
///     Elementreihe<Textfeld> tbKurz{*this, "tbKurz"_t, 1, 12, Einzeilig, 5};
///     tbKurz(12).setzeText("0");                         // "tbKurz(12)"
template <class E> class Elementreihe {
public:
    template <class... A>
    Elementreihe(Elementträger& träger, std::string_view name, int von, int bis, const A&... werte) : m_von(von)
    {
        for (int i = von; i <= bis; ++i) {
            m_felder.emplace_back(träger, verbinde(name, '(', std::to_string(i), ')'), werte...);
        }
    }

    E& operator()(int i) { return m_felder.at(static_cast<std::size_t>(i - m_von)); }
    const E& operator()(int i) const { return m_felder.at(static_cast<std::size_t>(i - m_von)); }
    int von() const { return m_von; }
    int bis() const { return m_von + static_cast<int>(m_felder.size()) - 1; }

    auto begin() { return m_felder.begin(); }
    auto end() { return m_felder.end(); }
    auto begin() const { return m_felder.begin(); }
    auto end() const { return m_felder.end(); }

private:
    int m_von;
    std::deque<E> m_felder;
};
