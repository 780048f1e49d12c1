#include "platform/qt/Textbox.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabewaechter.h"
#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
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
        const auto marke = static_cast<int>(eingabe.schreibmarke);
        const auto anker = static_cast<int>(eingabe.anker);
        setCursorPosition(marke);
        setSelection(anker, marke - anker);
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
    connect(this, &QPlainTextEdit::textChanged, this, [this] { übertrage(); });
    ansicht.binde(element, *this, [this] { übernimm(); });
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
        m_wirdGefüllt = true;
        setPlainText(neu);
        m_wirdGefüllt = false;
    }
}

/// Makes the document what the field takes, by one step that can be undone.
void Textblock::ersetze(const QString& genommen, int marke)
{
    const auto roh = rohtext();
    const auto vorn = std::ranges::mismatch(roh, genommen).in1 - roh.begin();
    const auto gleichesEnde = std::mismatch(roh.rbegin(), roh.rend(), genommen.rbegin(), genommen.rend());
    const qsizetype übrig = std::min(roh.size(), genommen.size()) - vorn;
    const auto hinten = std::min<qsizetype>(gleichesEnde.first - roh.rbegin(), übrig);
    QTextCursor stelle(document());
    stelle.setPosition(static_cast<int>(vorn));
    stelle.setPosition(static_cast<int>(roh.size() - hinten), QTextCursor::KeepAnchor);
    stelle.insertText(genommen.mid(vorn, genommen.size() - vorn - hinten));
    stelle.setPosition(marke);
    setTextCursor(stelle);
    ensureCursorVisible();
}

void Textblock::fügeEin(const QString& getippt)
{
    if (!m_ansicht.lebt() || getippt.isEmpty()) {
        return;
    }
    const auto auswahl = textCursor();
    auto jetzt = rohtext();
    jetzt.replace(auswahl.selectionStart(), auswahl.selectionEnd() - auswahl.selectionStart(), getippt);
    const int marke = auswahl.selectionStart() + static_cast<int>(getippt.size());
    const auto eingabe = filtere(m_element.text(), jetzt, marke, true, m_element.höchstlänge());
    meldeFilter(*this, eingabe.ergebnis, m_element.höchstlänge());
    if (eingabe.schreibmarke != eingabe.anker) {
        return; // nothing was taken, and what is selected stays
    }
    m_wirdGefüllt = true;
    ersetze(alsMehrzeiler(eingabe.ergebnis.text), markeIn(eingabe.ergebnis.text, eingabe.schreibmarke));
    m_wirdGefüllt = false;
    m_ansicht.ereignis([&] { m_element.gibEin(eingabe.ergebnis.text, eingabe.schreibmarke); });
}

/// What the toolkit did by itself: deleted, broken a line, undone.
void Textblock::übertrage()
{
    if (m_wirdGefüllt || !m_ansicht.lebt()) {
        return;
    }
    const auto roh = alsZeichen(rohtext());
    const auto marke = static_cast<std::size_t>(textCursor().position());
    const auto neu = übertrageÄnderung(m_element.text(), roh, std::min(marke, roh.size()), true);
    if (neu.ergebnis.text != m_element.text()) {
        m_ansicht.ereignis([&] { m_element.gibEin(neu.ergebnis.text, neu.schreibmarke); });
    }
}

void Textblock::keyPressEvent(QKeyEvent* ereignis)
{
    const auto taste = alsTaste(*ereignis);
    if (taste && taste->art == Taste::Art::Zeichen && !taste->istKombination()) {
        fügeEin(ereignis->text());
        ereignis->accept();
    } else {
        QPlainTextEdit::keyPressEvent(ereignis);
    }
}

void Textblock::inputMethodEvent(QInputMethodEvent* ereignis)
{
    QInputMethodEvent ohneText(ereignis->preeditString(), ereignis->attributes());
    QPlainTextEdit::inputMethodEvent(&ohneText);
    fügeEin(ereignis->commitString());
    ereignis->accept();
}

void Textblock::insertFromMimeData(const QMimeData* daten)
{
    fügeEin(daten->text());
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
