#pragma once

#include "satz/Satzaufbau.h"

#include <string>
#include <string_view>
#include <vector>

/// Whether a value is one that the program writes into the field: from its list, its range of numbers, its default,
/// or what stands for an answer not given. Free texts, keys, dates and the bit field have rules of their own and
/// pass here. Fields count from 1; a field beyond the layout passes.
bool istKlientenwert(int feld, std::string_view wert);
bool istBetreuungswert(int feld, std::string_view wert);
bool istDiagnosewert(int feld, std::string_view wert);

/// Field `feld` from 1; a text without a name beyond the layout.
const Satzfeld& feldOderNichts(const std::vector<Satzfeld>& felder, int feld);

/// What a field of the diagnosis record is called in a report: its name, in the blocks group and question.
std::string diagnosefeldname(int feld);
