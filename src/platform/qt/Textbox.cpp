#include "platform/qt/Textbox.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabefilter.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QFocusEvent>
#include <QScrollBar>
#include <QTextCursor>

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
    if (element.höchstlänge() > 0) {
        setMaxLength(static_cast<int>(element.höchstlänge()));
    }
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
    const auto eingabe = filtere(text, cursorPosition(), false, m_element.höchstlänge());
    meldeFilter(*this, eingabe);
    if (!eingabe.istWieGetippt) {
        setText(alsQString(eingabe.text));
        setCursorPosition(static_cast<int>(eingabe.schreibmarke));
    }
    m_ansicht.ereignis([&] { m_element.gibEin(eingabe.text, eingabe.schreibmarke); });
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

void Textblock::übernimm()
{
    if (const auto neu = alsMehrzeiler(m_element.text()); toPlainText() != neu) {
        setzeText(neu);
    }
}

void Textblock::gibEin()
{
    if (m_wirdGefüllt || !m_ansicht.lebt()) {
        return;
    }
    const auto eingabe = filtere(toPlainText(), textCursor().position(), true, m_element.höchstlänge());
    meldeFilter(*this, eingabe);
    if (!eingabe.istWieGetippt) {
        setzeText(alsMehrzeiler(eingabe.text));
        auto marke = textCursor();
        marke.setPosition(markeIn(eingabe.text, eingabe.schreibmarke));
        setTextCursor(marke);
    }
    m_ansicht.ereignis([&] { m_element.gibEin(eingabe.text, eingabe.schreibmarke); });
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
