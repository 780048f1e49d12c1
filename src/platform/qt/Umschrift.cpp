#include "platform/qt/Umschrift.h"

#include "platform/text/Zeichensatz.h"

#include <QList>

QString alsQString(std::string_view text)
{
    QString ergebnis;
    ergebnis.reserve(static_cast<qsizetype>(text.size()));
    for (const char zeichen : text) {
        ergebnis.append(QChar(static_cast<char16_t>(zeichensatz::unicodeVon(zeichen))));
    }
    return ergebnis;
}

QString alsMehrzeiler(std::string_view text)
{
    const auto zeichen = alsFeldtext(text, true);
    return QString::fromUcs4(zeichen.data(), std::ssize(zeichen));
}

std::u32string alsZeichen(const QString& text)
{
    const auto ucs4 = text.toUcs4();
    return {ucs4.begin(), ucs4.end()};
}

std::string alsText(const QString& text)
{
    return nimmEingabe(alsZeichen(text), true).text;
}

Feldänderung filtere(std::string_view bisher, const QString& jetzt, int marke, bool mehrzeilig, std::size_t höchstlänge)
{
    return nimmÄnderung(bisher, alsZeichen(jetzt), alsZeichen(jetzt.left(marke)).size(), mehrzeilig, höchstlänge);
}
