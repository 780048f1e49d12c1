#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The statements of the language as one table: their words, arguments, options, and whether lines follow.

enum class Gattung {
    Aufbau,         ///< set-up: files, clock, start
    Bereitstellung, ///< queued for the next box or dialogue
    Handlung,       ///< what a person does
    Erwartung,      ///< what must then be so
};

enum class Argumentart { Text, Zahl, Datum, Element, Rahmen, Tasten, Antwort, Dateiwahl, Feldwert };

/// An option `name=value` behind the arguments; no values: any text.
struct Option {
    std::string_view name;
    std::vector<std::string_view> werte;
};

struct Argument {
    Argumentart art;
    std::string_view name; ///< in the description: "ZEILE"
};

struct Anweisungsform {
    std::string_view wort; ///< "erwarte text"
    Gattung gattung;
    std::vector<Argument> pflicht = {};
    std::vector<Argument> möglich = {};
    std::vector<Argument> weitere = {}; ///< any number of further arguments of this kind, or nothing
    std::vector<Option> optionen = {};
    bool mitZeilen = false;
    bool einzelzeichen = false;   ///< `\r` and `\n` in its texts are the single characters
    bool auchUnmöglich = false;   ///< may stand behind `unmöglich`
    bool schreibtDateien = false; ///< or removes them, past the program
    std::string_view bedeutung;   ///< for the description (Sprachbeschreibung), in English
};

const std::vector<Anweisungsform>& anweisungsformen();
/// The form with the word, nullptr for none.
const Anweisungsform* findeForm(std::string_view wort);
