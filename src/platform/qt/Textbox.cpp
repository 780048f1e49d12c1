#include "platform/qt/Textbox.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabefilter.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QFocusEvent>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

/// Position in the widget, where a line break is one character, for the element's, where it is two.
int markeIn(const std::string& text, std::size_t marke)
{
    return static_cast<int>(alsMehrzeiler(std::string_view(text).substr(0, marke)).size());
}

} // namespace

Textzeile::Textzeile(Textfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QLineEdit(eltern), m_element(element), m_ansicht(ansicht)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // no length of the widget's own: it would cut what was stored longer
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { gibEin(text); });
    ansicht.binde(element, *this, [this] { übernimm(); });
}

void Textzeile::übernimm()
{
    if (const auto neu = alsQString(m_element.text()); text() != neu) {
        setText(neu);
        setCursorPosition(static_cast<int>(m_element.schreibmarke()));
    }
}

void Textzeile::gibEin(const QString& text)
{
    if (!m_ansicht.lebt()) {
        return;
    }
    const auto eingabe = filtere(m_element.text(), text, cursorPosition(), false, m_element.höchstlänge());
    if (const auto genommen = alsQString(eingabe.ergebnis.text); genommen != text) {
        setText(genommen);
        setCursorPosition(static_cast<int>(eingabe.schreibmarke));
    }
    meldeFilter(*this, eingabe.ergebnis, m_element.höchstlänge());
    m_ansicht.ereignis([&] { m_element.gibEin(eingabe.ergebnis.text, eingabe.schreibmarke); });
}

void Textzeile::focusInEvent(QFocusEvent* ereignis)
{
    QLineEdit::focusInEvent(ereignis);
    if (m_ansicht.lebt() && ereignis->reason() == Qt::OtherFocusReason) {
        setCursorPosition(static_cast<int>(m_element.schreibmarke()));
    }
}

QSize Textzeile::sizeHint() const
{
    return {em(24), QLineEdit::sizeHint().height()};
}

QSize Textzeile::minimumSizeHint() const
{
    return {em(3), QLineEdit::minimumSizeHint().height()};
}

Textblock::Textblock(Textfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QPlainTextEdit(eltern), m_element(element), m_ansicht(ansicht)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { gibEin(); });
    ansicht.binde(element, *this, [this] { übernimm(); });
}

void Textblock::setzeText(const QString& text)
{
    m_wirdGefüllt = true;
    setPlainText(text);
    m_wirdGefüllt = false;
}

/// As the document holds it; `toPlainText` would make blanks of no-break spaces.
QString Textblock::rohtext() const
{
    auto text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QChar('\n'));
    text.replace(QChar::LineSeparator, QChar('\n'));
    return text;
}

void Textblock::übernimm()
{
    if (const auto neu = alsMehrzeiler(m_element.text()); rohtext() != neu) {
        setzeText(neu);
    }
}

/// Puts the text that the field takes in place of what was typed; as a step of the same undo, so that the old text
/// can still be had back.
void Textblock::verbessere(const QString& genommen, int marke)
{
    const auto roh = rohtext();
    const auto kürzere = std::min(roh.size(), genommen.size());
    qsizetype vorn = 0;
    while (vorn < kürzere && roh[vorn] == genommen[vorn]) {
        ++vorn;
    }
    qsizetype hinten = 0;
    while (hinten < kürzere - vorn && roh[roh.size() - 1 - hinten] == genommen[genommen.size() - 1 - hinten]) {
        ++hinten;
    }
    m_wirdGefüllt = true;
    QTextCursor stelle(document());
    stelle.joinPreviousEditBlock();
    stelle.setPosition(static_cast<int>(vorn));
    stelle.setPosition(static_cast<int>(roh.size() - hinten), QTextCursor::KeepAnchor);
    stelle.insertText(genommen.mid(vorn, genommen.size() - vorn - hinten));
    stelle.endEditBlock();
    stelle.setPosition(marke);
    setTextCursor(stelle);
    m_wirdGefüllt = false;
}

void Textblock::gibEin()
{
    if (m_wirdGefüllt || !m_ansicht.lebt()) {
        return;
    }
    const auto roh = rohtext();
    const auto eingabe = filtere(m_element.text(), roh, textCursor().position(), true, m_element.höchstlänge());
    if (eingabe.ergebnis.text == m_element.text() && alsMehrzeiler(eingabe.ergebnis.text) == roh) {
        return; // only the looks have changed
    }
    if (const auto genommen = alsMehrzeiler(eingabe.ergebnis.text); genommen != roh) {
        verbessere(genommen, markeIn(eingabe.ergebnis.text, eingabe.schreibmarke));
    }
    meldeFilter(*this, eingabe.ergebnis, m_element.höchstlänge());
    m_ansicht.ereignis([&] { m_element.gibEin(eingabe.ergebnis.text, eingabe.schreibmarke); });
}

void Textblock::focusInEvent(QFocusEvent* ereignis)
{
    QPlainTextEdit::focusInEvent(ereignis);
    if (m_ansicht.lebt() && ereignis->reason() == Qt::OtherFocusReason) {
        auto marke = textCursor();
        marke.setPosition(markeIn(m_element.text(), m_element.schreibmarke()));
        setTextCursor(marke);
    }
}

QSize Textblock::sizeHint() const
{
    return {em(24), em(9)};
}

QSize Textblock::minimumSizeHint() const
{
    return {em(8), em(4)};
}
