#pragma once

#include <cstddef>
#include <initializer_list>
#include <random>
#include <vector>

/// Random numbers that depend on the seed alone: the generator is used raw, since the distributions of the
/// standard library differ from one library to the next.
class Zufall {
public:
    explicit Zufall(unsigned long long saat) : m_würfel(saat) {}

    /// A whole number, both ends included.
    int zahl(int von, int bis) { return von + static_cast<int>(m_würfel() % static_cast<unsigned>(bis - von + 1)); }
    /// An index below `anzahl`, which is not 0.
    std::size_t ort(std::size_t anzahl) { return static_cast<std::size_t>(m_würfel() % anzahl); }
    /// True in so many of a hundred cases.
    bool trifft(int prozent) { return zahl(1, 100) <= prozent; }
    template <class T> const T& eines(const std::vector<T>& vorrat) { return vorrat[ort(vorrat.size())]; }
    template <class T> T eines(std::initializer_list<T> vorrat) { return *(vorrat.begin() + ort(vorrat.size())); }

private:
    std::mt19937_64 m_würfel;
};
