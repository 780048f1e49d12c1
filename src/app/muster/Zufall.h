#pragma once

#include <cstdint>
#include <random>

/// Random numbers that are the same on every machine: the standard's distributions are not.
class Zufall {
public:
    explicit Zufall(std::uint64_t saat) : m_quelle(saat) {}

    /// A whole number from `von` to `bis`.
    int zahl(int von, int bis)
    {
        const auto spanne = static_cast<std::uint64_t>(bis - von) + 1;
        return von + static_cast<int>(m_quelle() % spanne);
    }
    /// True in `prozent` of all cases.
    bool trifft(int prozent) { return zahl(1, 100) <= prozent; }

    template <class Menge> const auto& aus(const Menge& menge)
    {
        return menge[static_cast<std::size_t>(zahl(0, static_cast<int>(menge.size()) - 1))];
    }

private:
    std::mt19937_64 m_quelle;
};
