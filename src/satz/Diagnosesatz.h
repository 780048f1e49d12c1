#pragma once

#include "satz/Diagnosefelder.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The rules of the diagnosis record over the working string DSDiag: the record without its two ids, 245 fields,
// each followed by the delimiter. 29 blocks of 8 answers, one block for a group, come first; then the twelve
// further diagnoses; last the bit field, in which group g owns 2 to the power g.
//
// Bits are computed in 64 bits and may come out negative; they are tested in two's complement.

/// Position in DSDiag of answer `platz` (1 to 8) of the group (1 to 29).
constexpr int blockposition(int gruppe, int platz)
{
    return feld::diag::antwort(gruppe, platz) - feld::diag::betrID;
}
/// Position of the further diagnosis `nummer` (1 to 12).
constexpr int weitereDiagnose(int nummer)
{
    return feld::diag::weitere(nummer) - feld::diag::betrID;
}
inline constexpr int bitfeldposition = feld::diag::bitfeld - feld::diag::betrID;

/// The bit of the group; none for a number that can't be one.
constexpr std::int64_t gruppenbit(int gruppe)
{
    constexpr int höchstesBit = 62;
    return gruppe < 0 || gruppe > höchstesBit ? 0 : std::int64_t{1} << gruppe;
}

/// DSDiag cut at the block of a group; the three parts joined are DSDiag again.
struct Blockteile {
    std::string_view davor;
    std::string_view block; ///< its eight fields, each followed by the delimiter
    std::string_view dahinter;
};
Blockteile zerlegeDSDiag(std::string_view dsDiag, int gruppe);

std::string_view blockfeld(std::string_view dsDiag, int gruppe, int platz);

/// Whether the answer says nothing: empty, or the number that imported records write for an answer not given.
bool istLeerwert(int gruppe, int platz, std::string_view wert);
/// The lowest group with the mark of the main diagnosis, -1 for none.
std::int16_t getHDGruppenNr(std::string_view dsDiag);
/// Whether an answer of the block says anything (the empty texts of each answer aside).
bool istGruppeBelegt(std::string_view dsDiag, int gruppe);

/// The bit field; an empty one is 0. A text that is no whole number is a Laufzeitfehler.
std::int64_t leseBitfeld(std::string_view dsDiag);
/// Whether the group's own bit is set.
bool hatBit(std::int64_t bits, int gruppe);
/// The groups to be listed: the bit is set, or the block says something. Ascending.
std::vector<int> vorhandeneGruppen(std::string_view dsDiag);

/// Replaces the group's block by `block`: eight fields, each followed by the delimiter.
void schreibeGruppeInDSDiag(std::string& dsDiag, int gruppe, std::string_view block);
/// Replaces the bit field; what stands behind it is dropped.
void schreibeBitFeldInDSDiag(std::string& dsDiag, std::string_view text);
/// Sets the group's bit.
void trageGruppeEin(std::string& dsDiag, int gruppe);
/// Empties the group's block and subtracts its bit, which is not tested first: a group that is listed for its
/// answers alone leaves a wrong bit field behind, negative or with bits of other groups. Meant to stay.
void löscheGruppe(std::string& dsDiag, int gruppe);
/// Takes the mark of the main diagnosis from the group; its other answers stay.
void nimmHDMarke(std::string& dsDiag, int gruppe);
