#include "platform/qt/Kuerzung.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>

namespace {

QStringList brich(const QString& absatz, const QFont& schrift, int breite)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    QTextLayout satz(absatz, schrift);
    satz.setTextOption(option);
    QStringList zeilen;
    satz.beginLayout();
    for (auto zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(breite);
        zeilen.append(absatz.mid(zeile.textStart(), zeile.textLength()).trimmed());
    }
    satz.endLayout();
    return zeilen;
}

/// As many lines as have room; a last line that is there for the greater part counts, its rest is white.
qsizetype zeilenIn(int höhe, const QFontMetrics& maß)
{
    return std::max(1, (höhe + maß.leading() + maß.lineSpacing() / 4) / std::max(1, maß.lineSpacing()));
}

} // namespace

QString kürze(const QString& text, const QSize& platz, const QFont& schrift, bool bricht)
{
    const QFontMetrics maß(schrift);
    QStringList zeilen;
    for (const auto& absatz : text.split(QChar('\n'))) {
        zeilen += bricht ? brich(absatz, schrift, platz.width()) : QStringList{absatz};
    }
    bool gekürzt = false;
    const auto höchstens = zeilenIn(platz.height(), maß);
    if (zeilen.size() > höchstens) {
        const auto rest = zeilen.mid(höchstens - 1).join(QChar(' '));
        zeilen = zeilen.mid(0, höchstens - 1);
        zeilen.append(rest + QChar(0x2026)); // cut below, where it is too wide
        gekürzt = true;
    }
    for (auto& zeile : zeilen) {
        const auto kurz = maß.elidedText(zeile, Qt::ElideRight, platz.width());
        gekürzt = gekürzt || kurz != zeile;
        zeile = kurz;
    }
    return gekürzt ? zeilen.join(QChar('\n')) : text;
}
