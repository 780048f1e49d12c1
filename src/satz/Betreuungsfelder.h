#pragma once

#include "platform/text/Text.h"
#include "satz/Feldreihe.h"

// The care record: its table, and the names of the positions that are spoken of. A field gets a name here when it is
// first needed; the table says where it stands.

namespace betreuungstabelle {

using enum Feldart;

inline constexpr auto keineAngaben = "keine Angaben"_t;
inline constexpr auto kA = antworttext::keine;
/// The dates of a new record are a literal, overwritten when the episode is created.
inline constexpr auto platzhalter = "02.08.2007"_t;

inline constexpr Feldreihe reihen[]{
    {"kernID"_t, einzeln, ohneSpalte, idKern, {}, "1"_t},
    {"betrID"_t, einzeln, ohneSpalte, idBetr, {}, "1"_t},
    {"BetrBeg"_t, einzeln, {'K', 4}, datum, {}, platzhalter},
    {"BetrEnd"_t, einzeln, {'K', 5}, datum, {}, platzhalter},
    {"Wieder"_t, einzeln, {'K', 13}, option, werte::kurz, kA},
    {"BetrGru"_t, einzeln, {'K', 9}, option, werte::betrGru, keineAngaben},
    {"Angeho"_t, einzeln, {'K', 10}, option, werte::angeho, keineAngaben},
    {"Problem"_t, einzeln, {'K', 11}, option, werte::problem, keineAngaben},
    {"Nation"_t, einzeln, {'K', 54}, nation, {}, keineAngaben},
    {"Sprache"_t, einzeln, {'K', 55}, option, werte::lang, keineAngaben},
    {"Migrant"_t, {1, 2}, {'K', 56}, option, werte::lang, keineAngaben},
    {"Vermitt"_t, einzeln, {'K', 14}, option, werte::vermitt, "Keine / Selbstmelder"_t},
    {"Auflagen1"_t, einzeln, {'K', 24}, option, werte::auflagen1, keineAngaben},
    {"Auflagen2"_t, einzeln, {'K', 25}, option, werte::auflagen2, keineAngaben},
    {"Kosten"_t, {1, 9}, {'K', 15}, option, werte::kurz, kA},
    {"Substitut"_t, einzeln, {'K', 127}, option, werte::substitut, keineAngaben},
    {"zuvorNULL"_t, einzeln, {'K', 12}, option, werte::kurz, kA},
    {"MasInt"_t, {1, 17}, {'K', 93}, option, werte::kurz, kA},
    {"MasExt"_t, {1, 17}, {'K', 110}, option, werte::kurz, kA},
    {"Zuvor"_t, {1, 18}, {'K', 26}, zuvor, {}, kA},
    {"Kooper"_t, {1, 26}, {'K', 128}, option, werte::kurz, kA},
    {"FamSta"_t, einzeln, {'K', 44}, option, werte::famSta, keineAngaben},
    {"Partner"_t, einzeln, {'K', 45}, option, werte::partner, keineAngaben},
    {"LebenSit"_t, {0, 5}, {'K', 46}, option, werte::lang, keineAngaben},
    {"Kinder"_t, {1, 2}, {'K', 52}, kinder, {}, kA},
    {"Wohnung"_t, {1, 3}, {'K', 60}, option, werte::wohnung, keineAngaben},
    {"LebUntV"_t, {1, 12}, {'K', 66}, option, werte::kurz, kA},
    {"LebUntN"_t, {1, 12}, {'K', 79}, option, werte::kurz, kA},
    {"LebUnterV"_t, einzeln, {'K', 78}, zahl, {}, "0"_t},
    {"LebUnterN"_t, einzeln, {'K', 91}, zahl, {}, "0"_t},
    {"Schule"_t, einzeln, {'K', 58}, option, werte::schule, keineAngaben},
    {"Ausbild"_t, einzeln, {'K', 59}, option, werte::ausbild, keineAngaben},
    {"Erwerb"_t, {1, 3}, {'K', 63}, option, werte::erwerb, keineAngaben},
    {"Schulden"_t, einzeln, {'K', 92}, option, werte::schulden, keineAngaben},
    {"HDohne"_t, {0, 0}, {'D', 161, true}, hdOhne, {}, "Wahr"_t},
    {"HDohne"_t, {1, 5}, {'D', 161, true}, hdOhne, {}, "Falsch"_t},
    {"ICDPoly"_t, einzeln, {'D', 124}, option, werte::lang, keineAngaben},
    {"HIVInfekt"_t, einzeln, {'D', 174}, option, werte::test, keineAngaben},
    {"HepatB"_t, einzeln, {'D', 175}, option, werte::test, keineAngaben},
    {"HepatC"_t, einzeln, {'D', 176}, option, werte::hepatitisC, keineAngaben},
    {"IVKonsum"_t, {0, 0}, {'D', 177, true}, ivKonsum, {}, "Wahr"_t},
    {"IVKonsum"_t, {1, 3}, {'D', 177, true}, ivKonsum, {}, "Falsch"_t},
    {"Kontakte"_t, einzeln, {'K', 154}, kontakte, {}, kA},
    {"ArtEnd1"_t, einzeln, {'K', 155}, option, werte::artEnd1, keineAngaben},
    {"ArtEnd2"_t, einzeln, {'K', 156}, option, werte::artEnd2, keineAngaben},
    {"ProblEnde"_t, einzeln, {'K', 181}, option, werte::problEnde, keineAngaben},
    {"Weiter"_t, einzeln, {'K', 157}, option, werte::lang, keineAngaben},
    {"Vermitt"_t, {1, 23}, {'K', 158}, option, werte::kurz, kA},
    {"memoB"_t, einzeln, ohneSpalte, memo, {}, ""_t},
};

} // namespace betreuungstabelle

/// Positions in the care record, from 1.
namespace feld::betr {

/// The position of the field, or of the first of a run.
consteval int stelle(std::string_view name)
{
    return stelleIn(betreuungstabelle::reihen, name);
}

inline constexpr int kernID = stelle("kernID"_t);
inline constexpr int betrID = stelle("betrID"_t);
inline constexpr int beginn = stelle("BetrBeg"_t);
inline constexpr int ende = stelle("BetrEnd"_t);
inline constexpr int wieder = stelle("Wieder"_t);
inline constexpr int betrGru = stelle("BetrGru"_t);
inline constexpr int nation = stelle("Nation"_t);
inline constexpr int sprache = stelle("Sprache"_t);
inline constexpr int migrant = stelle("Migrant"_t); ///< two fields
inline constexpr int substitut = stelle("Substitut"_t);
inline constexpr int famSta = stelle("FamSta"_t);
inline constexpr int lebUntV = stelle("LebUntV"_t);
inline constexpr int hdOhne = stelle("HDohne"_t); ///< six fields
inline constexpr int icdPoly = stelle("ICDPoly"_t);
inline constexpr int hivInfekt = stelle("HIVInfekt"_t);
inline constexpr int hepatB = stelle("HepatB"_t);
inline constexpr int hepatC = stelle("HepatC"_t);
inline constexpr int ivKonsum = stelle("IVKonsum"_t); ///< four fields
inline constexpr int kontakte = stelle("Kontakte"_t);
inline constexpr int memo = stelle("memoB"_t);
inline constexpr int anzahl = feldzahl(betreuungstabelle::reihen);

} // namespace feld::betr
