#include "oberflaeche/QtAuge.h"

#include "platform/elemente/triCtlJaNein.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Flaechen.h"
#include "platform/text/Text.h"
#include "sprache/Unicode.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTextDocument>
#include <QTreeView>

namespace {

/// Way buttons and narrow labels break the line behind a hyphen, which is no part of their text.
QString ohneZierumbruch(const Element& element, QString text)
{
    if (element.text().find("- ") != std::string::npos) {
        text.replace(QStringLiteral("-\n"), QStringLiteral("- "));
    }
    return text;
}

QString gezeigterText(const QWidget& widget)
{
    if (const auto* antwort = dynamic_cast<const Antwortfeld*>(&widget)) {
        return antwort->text();
    }
    if (const auto* auswahl = dynamic_cast<const Auswahlbox*>(&widget)) {
        return auswahl->gezeigterText();
    }
    if (const auto* etikett = qobject_cast<const QLabel*>(&widget)) {
        return etikett->text();
    }
    if (const auto* knopf = qobject_cast<const QAbstractButton*>(&widget)) {
        return knopf->text();
    }
    if (const auto* zeile = qobject_cast<const QLineEdit*>(&widget)) {
        return zeile->text();
    }
    if (const auto* block = qobject_cast<const QPlainTextEdit*>(&widget)) {
        auto text = block->document()->toRawText(); // toPlainText makes blanks of no-break spaces
        return text.replace(QChar::ParagraphSeparator, QChar('\n'));
    }
    if (const auto* balken = qobject_cast<const QProgressBar*>(&widget)) {
        return QString::number(balken->value());
    }
    if (const auto* leiste = qobject_cast<const QScrollBar*>(&widget)) {
        return QString::number(leiste->value());
    }
    return {};
}

bool istGesperrt(const QWidget& widget)
{
    return !widget.isEnabledTo(widget.parentWidget());
}

} // namespace

namespace qtauge {

std::string text(const QString& text)
{
    const auto zeichen = text.toUcs4();
    return alsTabellentext(std::u32string(zeichen.begin(), zeichen.end()));
}

std::string text(const Element& element, const QWidget& widget)
{
    return text(ohneZierumbruch(element, gezeigterText(widget)));
}

bool istZuSehen(const QWidget& widget)
{
    if (!widget.isVisible()) {
        return false;
    }
    for (const auto* w = &widget; w != nullptr && !w->isWindow(); w = w->parentWidget()) {
        const auto* deckfläche = dynamic_cast<const Deckfläche*>(w->parentWidget());
        // the cover is the child on top
        if (deckfläche != nullptr && deckfläche->children().last() != w) {
            const auto* decke = qobject_cast<const QWidget*>(deckfläche->children().last());
            if (decke != nullptr && decke->isVisible()) {
                return false;
            }
        }
    }
    return true;
}

bool istFrei(const QWidget& widget)
{
    for (const auto* w = &widget; w != nullptr && !w->isWindow(); w = w->parentWidget()) {
        const bool unterDecke = w != &widget && dynamic_cast<const Deckfläche*>(w->parentWidget()) != nullptr;
        if (istGesperrt(*w) && !unterDecke) {
            return false;
        }
    }
    return widget.window()->isEnabled();
}

bool hatFokus(const QWidget& widget)
{
    const auto* fokus = widget.window()->focusWidget();
    return widget.isVisible() && fokus != nullptr && (fokus == &widget || widget.isAncestorOf(fokus));
}

Farbe hintergrund(const Element& element, const QWidget& widget)
{
    if (const auto* antwort = dynamic_cast<const Antwortfeld*>(&widget)) {
        const QColor farbe = antwort->hintergrund();
        return farbe.red() + 256 * farbe.green() + 65536 * farbe.blue();
    }
    if (dynamic_cast<const Auswahlbox*>(&widget) != nullptr) {
        return widget.property("falsch").toBool() ? farbe::rot : farbe::weiß;
    }
    return element.hintergrund();
}

std::vector<std::string> einträge(const QComboBox& box)
{
    std::vector<std::string> texte;
    for (int i = 0; i < box.count(); ++i) {
        texte.push_back(text(box.itemText(i)));
    }
    return texte;
}

std::vector<std::string> zeilen(const QTreeView& liste)
{
    const auto& modell = *liste.model();
    std::vector<std::string> zeilen;
    for (int i = 0; i < modell.rowCount(); ++i) {
        std::string zeile = text(modell.index(i, 0).data().toString());
        for (int spalte = 1; spalte < modell.columnCount(); ++spalte) {
            zeile += trenner + text(modell.index(i, spalte).data().toString());
        }
        zeilen.push_back(std::move(zeile));
    }
    return zeilen;
}

std::vector<std::string> spaltenköpfe(const QTreeView& liste)
{
    const auto& modell = *liste.model();
    std::vector<std::string> köpfe;
    for (int spalte = 0; spalte < modell.columnCount(); ++spalte) {
        köpfe.push_back(text(modell.headerData(spalte, Qt::Horizontal).toString()));
    }
    return köpfe;
}

std::size_t auswahl(const QTreeView& liste)
{
    const auto gewählt = liste.selectionModel()->selectedRows();
    return gewählt.isEmpty() ? 0 : static_cast<std::size_t>(gewählt.first().row()) + 1;
}

} // namespace qtauge
