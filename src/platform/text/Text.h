#pragma once

#include "platform/text/Utf8.h"
#include "platform/text/Zeichensatz.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

/// Text of the program: bytes in the code page of the tables, one byte a character, so that every
/// position and length is the one the record layout means.
///
/// Source files are UTF-8. The literal `"männlich"_t` turns a text into code-page bytes while
/// compiling and refuses what the code page lacks; it yields a std::string_view of static storage.
namespace text_detail {

/// A character that the code page lacks, or broken UTF-8, stops the compiler here.
inline void zeichenFehltInDerCodepage()
{}

template <std::size_t N> struct Festtext {
    char bytes[N] = {};
    std::size_t länge = 0;

    // NOLINTNEXTLINE(google-explicit-constructor): a literal operator template needs it
    consteval Festtext(const char (&quelle)[N])
    {
        for (std::size_t i = 0; i + 1 < N;) {
            if (const char zeichen = quelle[i]; zeichen > 0) { // by far the most of them: compiling takes half as long
                bytes[länge++] = zeichen;
                ++i;
                continue;
            }
            const auto z = utf8::lies({quelle, N - 1}, i);
            const auto byte = zeichensatz::byteVon(z.wert);
            if (!byte) {
                zeichenFehltInDerCodepage();
            }
            bytes[länge++] = *byte;
            i += z.länge;
        }
    }
};

} // namespace text_detail

template <text_detail::Festtext T> consteval std::string_view operator""_t()
{
    return {T.bytes, T.länge};
}

/// The character 183 that separates the fields of a record.
inline constexpr char trenner = '\xB7';

/// Lower case by the code page (A to Z, umlauts, accented letters), never by the process locale.
char klein(char zeichen);
std::string klein(std::string_view text);

/// The text without blanks at both ends; only the blank counts, no tab and no line break.
std::string_view getrimmt(std::string_view text);

/// The letter that decides a sort: lower case, umlauts and accented letters as their base letter.
char sortierzeichen(char zeichen);

/// Text with every occurrence of `alt` replaced by `neu`; an empty `alt` changes nothing.
std::string ersetzt(std::string_view text, std::string_view alt, std::string_view neu);

/// The parts (texts and single characters) joined one behind the other.
template <class... T> std::string verbinde(const T&... teile)
{
    std::string ergebnis;
    const auto haenge = [&](const auto& teil) {
        if constexpr (std::is_same_v<std::decay_t<decltype(teil)>, char>) {
            ergebnis.push_back(teil);
        } else {
            ergebnis.append(teil);
        }
    };
    (haenge(teile), ...);
    return ergebnis;
}
