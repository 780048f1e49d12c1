#pragma once

#include "export/Satzsicht.h"
#include "import/moAnweisungen.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The two export rows of an episode and its ids.
struct Episodenzeilen {
    const Satzsicht& kern;
    const Satzsicht& diagnose;
    std::int32_t kernID = 0;
    std::int32_t betrID = 0;
};

/// Builds a record from the export rows of an episode: one field per row of the instruction table, each
/// followed by the delimiter.
class Satzbau {
public:
    enum class Art { Betreuung, Diagnose };

    Satzbau(Art art, std::vector<Feldanweisung> anweisungen) : m_art(art), m_anweisungen(std::move(anweisungen)) {}

    /// The record; valid until the next call.
    const std::string& baue(const Episodenzeilen& zeilen);

private:
    /// What the field becomes; valid until the next one.
    std::string_view feldwert(const Feldanweisung& anweisung, std::string_view wert, const Episodenzeilen& zeilen);
    std::string_view hauptdiagnose(const Feldanweisung& anweisung, std::string_view wert, const Episodenzeilen& zeilen);

    Art m_art;
    std::vector<Feldanweisung> m_anweisungen;
    std::string m_satz;
    std::string m_ablage;
    std::size_t m_letztesFeld = 0; ///< where the field written just before begins
    int m_hdOhne = 0;
    int m_ivKonsum = 0;
};
