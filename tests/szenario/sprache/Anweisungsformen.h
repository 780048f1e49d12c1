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

struct Anweisungsform {
    std::string_view wort; ///< "erwarte text"
    Gattung gattung;
    std::vector<Argumentart> pflicht = {};
    std::vector<Argumentart> möglich = {};
    std::vector<Argumentart> weitere = {}; ///< the kind of any number of further arguments, or nothing
    std::vector<Option> optionen = {};
    bool mitZeilen = false;
    bool einzelzeichen = false; ///< `\r` and `\n` in its texts are the single characters
    bool auchUnmöglich = false; ///< may stand behind `unmöglich`
};

const std::vector<Anweisungsform>& anweisungsformen();
/// The form with the word, nullptr for none.
const Anweisungsform* findeForm(std::string_view wort);
