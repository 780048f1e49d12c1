#include "sprache/Anweisungsformen.h"

#include <algorithm>

namespace {

using enum Argumentart;
using enum Gattung;

const std::vector<Option> meldungsoptionen{{"symbol", {"keins", "info", "warnung", "stop", "frage"}},
                                           {"knöpfe", {"OK", "OKAbbrechen", "JaNein"}},
                                           {"vorgabe", {"OK", "Abbrechen", "Ja", "Nein"}},
                                           {"titel", {}}};
const std::vector<Option> zellenoptionen{{"art", {"text", "zahl", "datum", "leer"}}};

std::vector<Anweisungsform> aufbau()
{
    return {
        {.wort = "heute", .gattung = Aufbau, .pflicht = {Datum}},
        {.wort = "datei", .gattung = Aufbau, .pflicht = {Text}, .mitZeilen = true},
        {.wort = "rohdatei", .gattung = Aufbau, .pflicht = {Text, Text}, .einzelzeichen = true},
        {.wort = "klient", .gattung = Aufbau, .pflicht = {Text}, .weitere = {Feldwert}},
        {.wort = "betreuung", .gattung = Aufbau, .pflicht = {Text, Text, Text, Text}, .weitere = {Feldwert}},
        {.wort = "diagnose", .gattung = Aufbau, .pflicht = {Text, Text}, .weitere = {Feldwert}},
        {.wort = "ordner", .gattung = Aufbau, .pflicht = {Text}},
        {.wort = "kopiere", .gattung = Aufbau, .pflicht = {Text}, .möglich = {Text}},
        {.wort = "entferne", .gattung = Aufbau, .pflicht = {Text}},
        {.wort = "sperre", .gattung = Aufbau, .pflicht = {Text}},
        {.wort = "zweite-instanz", .gattung = Aufbau},
        {.wort = "ohne-tabellenprogramm", .gattung = Aufbau},
        {.wort = "starte", .gattung = Aufbau},
        {.wort = "sichere", .gattung = Aufbau, .pflicht = {Text, Text}},
        {.wort = "sichere-mappe", .gattung = Aufbau, .pflicht = {Text}},
        {.wort = "sichere-meldungen", .gattung = Aufbau, .pflicht = {Text}},
    };
}

std::vector<Anweisungsform> handlungen()
{
    return {
        {.wort = "klicke", .gattung = Handlung, .pflicht = {Element}, .möglich = {Zahl}, .auchUnmöglich = true},
        {.wort = "doppelklicke", .gattung = Handlung, .pflicht = {Element}, .möglich = {Zahl}, .auchUnmöglich = true},
        {.wort = "kopf", .gattung = Handlung, .pflicht = {Element, Zahl}, .auchUnmöglich = true},
        {.wort = "setze", .gattung = Handlung, .pflicht = {Element, Text}, .auchUnmöglich = true},
        {.wort = "tippe", .gattung = Handlung, .pflicht = {Element, Tasten}, .auchUnmöglich = true},
        {.wort = "einfügen", .gattung = Handlung, .pflicht = {Element, Text}, .auchUnmöglich = true},
        {.wort = "rad", .gattung = Handlung, .pflicht = {Element, Zahl}, .auchUnmöglich = true},
        {.wort = "verlasse", .gattung = Handlung, .pflicht = {Element}, .auchUnmöglich = true},
        {.wort = "schließe", .gattung = Handlung, .pflicht = {Rahmen}},
        {.wort = "verschiebe", .gattung = Handlung, .pflicht = {Rahmen, Zahl, Zahl}},
        {.wort = "maximiere", .gattung = Handlung, .pflicht = {Rahmen}},
        {.wort = "normalisiere", .gattung = Handlung, .pflicht = {Rahmen}},
        {.wort = "antworte", .gattung = Bereitstellung, .pflicht = {Antwort}},
        {.wort = "dateiwahl", .gattung = Bereitstellung, .pflicht = {Dateiwahl}},
    };
}

std::vector<Anweisungsform> erwartungen()
{
    return {
        {.wort = "erwarte bildschirm", .gattung = Erwartung, .pflicht = {Text}},
        {.wort = "erwarte meldung", .gattung = Erwartung, .pflicht = {Text}, .optionen = meldungsoptionen},
        {.wort = "erwarte meldung-mit", .gattung = Erwartung, .pflicht = {Text}, .optionen = meldungsoptionen},
        {.wort = "erwarte text", .gattung = Erwartung, .pflicht = {Element, Text}},
        {.wort = "erwarte text-mit", .gattung = Erwartung, .pflicht = {Element, Text}},
        {.wort = "erwarte fokus", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte sichtbar", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte verborgen", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte frei", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte gesperrt", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte an", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte aus", .gattung = Erwartung, .pflicht = {Element}},
        {.wort = "erwarte liste", .gattung = Erwartung, .pflicht = {Element}, .mitZeilen = true},
        {.wort = "erwarte eintrag", .gattung = Erwartung, .pflicht = {Element, Zahl, Text}},
        {.wort = "erwarte einträge", .gattung = Erwartung, .pflicht = {Element, Zahl}},
        {.wort = "erwarte zeilen", .gattung = Erwartung, .pflicht = {Element}, .mitZeilen = true},
        {.wort = "erwarte spaltenköpfe", .gattung = Erwartung, .pflicht = {Element}, .mitZeilen = true},
        {.wort = "erwarte auswahl", .gattung = Erwartung, .pflicht = {Element, Zahl}},
        {.wort = "erwarte hinweis", .gattung = Erwartung, .pflicht = {Element, Text}},
        {.wort = "erwarte hintergrund", .gattung = Erwartung, .pflicht = {Element, Zahl}},
        {.wort = "erwarte wert", .gattung = Erwartung, .pflicht = {Element, Zahl}},
        {.wort = "erwarte lage", .gattung = Erwartung, .pflicht = {Element, Zahl, Zahl}},
        {.wort = "erwarte datei", .gattung = Erwartung, .pflicht = {Text}, .mitZeilen = true},
        {.wort = "erwarte roh", .gattung = Erwartung, .pflicht = {Text, Text}, .einzelzeichen = true},
        {.wort = "erwarte feld", .gattung = Erwartung, .pflicht = {Text, Zahl, Zahl, Text}},
        {.wort = "erwarte felderzahl", .gattung = Erwartung, .pflicht = {Text, Zahl, Zahl}},
        {.wort = "erwarte spalte", .gattung = Erwartung, .pflicht = {Text, Zahl, Zahl, Text}},
        {.wort = "erwarte zeilenzahl", .gattung = Erwartung, .pflicht = {Text, Zahl}},
        {.wort = "erwarte vorhanden", .gattung = Erwartung, .pflicht = {Text}},
        {.wort = "erwarte fehlt", .gattung = Erwartung, .pflicht = {Text}},
        {.wort = "erwarte blätter", .gattung = Erwartung, .weitere = {Text}},
        {.wort = "erwarte zelle",
         .gattung = Erwartung,
         .pflicht = {Text, Zahl, Zahl, Text},
         .optionen = zellenoptionen},
        {.wort = "erwarte kommentar", .gattung = Erwartung, .pflicht = {Text, Zahl, Zahl, Text}},
        {.wort = "erwarte fett", .gattung = Erwartung, .pflicht = {Text, Zahl}},
        {.wort = "erwarte zeilenanzahl", .gattung = Erwartung, .pflicht = {Text, Zahl}},
        {.wort = "erwarte spaltenanzahl", .gattung = Erwartung, .pflicht = {Text, Zahl}},
        {.wort = "erwarte ende", .gattung = Erwartung},
        {.wort = "erwarte absturz", .gattung = Erwartung, .möglich = {Text}},
    };
}

std::vector<Anweisungsform> alle()
{
    std::vector<Anweisungsform> formen = aufbau();
    for (const auto& teil : {handlungen(), erwartungen()}) {
        formen.insert(formen.end(), teil.begin(), teil.end());
    }
    return formen;
}

} // namespace

const std::vector<Anweisungsform>& anweisungsformen()
{
    static const std::vector<Anweisungsform> formen = alle();
    return formen;
}

const Anweisungsform* findeForm(std::string_view wort)
{
    const auto& formen = anweisungsformen();
    const auto ort = std::find_if(formen.begin(), formen.end(), [&](const auto& form) { return form.wort == wort; });
    return ort == formen.end() ? nullptr : &*ort;
}
