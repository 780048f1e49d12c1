#pragma once

#include "platform/text/Eingabe.h"

#include <QString>

#include <string>
#include <string_view>

// The border between the logic's text (bytes of the code page) and Qt's Unicode.

/// Code-page text as Unicode; nothing is lost.
QString alsQString(std::string_view text);
/// The same with line breaks as line feeds, for widgets of several lines.
QString alsMehrzeiler(std::string_view text);
/// Unicode as the fields take it (see platform/text/Eingabe.h); for texts that came from alsQString it is
/// the way back.
std::string alsText(const QString& text);
/// The Unicode characters of the text.
std::u32string alsZeichen(const QString& text);

/// What the field takes of a change: it held `bisher`, its widget now shows `jetzt` with the cursor behind `marke`
/// of Qt's characters.
Feldänderung filtere(std::string_view bisher, const QString& jetzt, int marke, bool mehrzeilig,
                     std::size_t höchstlänge);
