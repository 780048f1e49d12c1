#pragma once

#include "satz/Satzaufbau.h"

#include <string_view>

/// Whether a value is one that the program writes into the field: from its list, its range of numbers, its default,
/// or what stands for an answer not given. Free texts, keys, dates and the bit field have rules of their own and
/// pass here. Fields count from 1; a field beyond the layout passes.
bool istKlientenwert(int feld, std::string_view wert);
bool istBetreuungswert(int feld, std::string_view wert);
bool istDiagnosewert(int feld, std::string_view wert);

/// The kind of the field; `klient` in the client record and beyond the layouts.
Feldart betreuungsfeldart(int feld);
Feldart diagnosefeldart(int feld);

/// What a field is called in a report: its name, in the blocks of the diagnosis record group and question.
std::string_view klientenfeldname(int feld);
std::string_view betreuungsfeldname(int feld);
/// Of two parts, the second is empty where the field has a name of its own.
struct Diagnosefeldname {
    std::string_view bereich;
    std::string_view frage;
};
Diagnosefeldname diagnosefeldname(int feld);
