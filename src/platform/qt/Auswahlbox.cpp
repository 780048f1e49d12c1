#include "platform/qt/Auswahlbox.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabewaechter.h"
#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr int sichtbareEinträge = 16;
constexpr auto listentasteDesBaukastens = Qt::Key_F4;

int stelleIn(const std::vector<std::string>& liste, const std::string& text)
{
    const auto ort = std::ranges::find(liste, text);
    return ort == liste.end() ? -1 : static_cast<int>(ort - liste.begin());
}

bool klapptAuf(const QKeyEvent& ereignis)
{
    const auto taste = alsTaste(ereignis);
    return taste && taste->klapptAuf();
}

} // namespace

Auswahlbox::Auswahlbox(Auswahlfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QComboBox(eltern), m_element(element), m_ansicht(ansicht), m_liste(new QStringListModel(this))
{
    setModel(m_liste);
    setMaxVisibleItems(sichtbareEinträge);
    setMinimumContentsLength(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (element.istTippbar()) {
        macheTippbar();
    }
    ansicht.binde(element, *this, [this] { übernimm(); });
    connect(this, &QComboBox::activated, this, [this](int stelle) {
        if (stelle >= 0) {
            m_ansicht.ereignis([this, stelle] { m_element.wähle(static_cast<std::size_t>(stelle)); });
        }
        if (m_ansicht.lebt()) {
            übernimm();
        }
    });
}

void Auswahlbox::macheTippbar()
{
    // The base class forgets what it has noted for a line that it sees for the first time inside a box only when
    // the program ends.
    auto* zeile = new QLineEdit;
    zeile->ensurePolished();
    // It makes a completer for a line that has none, dearer than the box itself, and all for nothing.
    static QCompleter keiner;
    zeile->setCompleter(&keiner);
    setLineEdit(zeile);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { gibEin(text); });
    connect(lineEdit(), &QLineEdit::cursorPositionChanged, this, [this](int /*vorher*/, int jetzt) {
        if (!m_wirdGefüllt && m_ansicht.lebt() && lineEdit()->text() == m_text && !lineEdit()->hasSelectedText()) {
            m_element.setzeSchreibmarke(static_cast<std::size_t>(jetzt));
        }
    });
}

void Auswahlbox::gibEin(const QString& text)
{
    if (!m_ansicht.lebt()) {
        return;
    }
    const auto eingabe = filtere(m_element.text(), text, lineEdit()->cursorPosition(), false, 0);
    meldeFilter(*this, eingabe.ergebnis, 0);
    m_ansicht.ereignis([&] { m_element.gibEin(eingabe.ergebnis.text, eingabe.schreibmarke); });
}

QString Auswahlbox::gezeigterText() const
{
    return isEditable() ? lineEdit()->text() : m_text;
}

void Auswahlbox::gleicheSchreibmarkeAb(bool auswahlWeicht)
{
    auto& zeile = *lineEdit();
    if (!zeile.hasSelectedText() || m_element.istGanzGewählt()) {
        return;
    }
    const auto anfang = static_cast<std::size_t>(zeile.selectionStart());
    if (auswahlWeicht && !m_element.beiTastendruck) {
        auto rest = m_element.text();
        rest.erase(anfang, static_cast<std::size_t>(zeile.selectionLength()));
        m_element.gibEin(rest, anfang);
    } else {
        m_element.setzeSchreibmarke(anfang);
    }
    zeile.deselect();
}

void Auswahlbox::übernimm()
{
    m_wirdGefüllt = true;
    const QSignalBlocker still(this);
    übernimmListe();
    const auto text = m_element.text();
    const bool istNeu = std::exchange(m_text, alsQString(text)) != alsQString(text);
    const int vorher = currentIndex();
    setCurrentIndex(stelleIn(m_element.liste(), text));
    if (istNeu && vorher == currentIndex()) {
        meldeWert(*this, m_text); // the toolkit tells only of another entry of the list
    }
    if (isEditable()) {
        übernimmTippbar();
    }
    m_wirdGefüllt = false;
    update();
}

void Auswahlbox::übernimmListe()
{
    QStringList einträge;
    for (const auto& eintrag : m_element.liste()) {
        einträge.append(alsQString(eintrag));
    }
    if (m_liste->stringList() != einträge) {
        m_liste->setStringList(einträge);
    }
}

void Auswahlbox::übernimmTippbar()
{
    if (lineEdit()->text() != m_text) {
        lineEdit()->setText(m_text);
    }
    übernimmStelle();
    if (property("falsch").toBool() != m_element.istFalsch()) {
        setProperty("falsch", m_element.istFalsch());
        style()->unpolish(this);
        style()->polish(this);
    }
}

/// The whole text is selected with the cursor before it, or nothing is.
void Auswahlbox::übernimmStelle()
{
    auto& zeile = *lineEdit();
    if (m_element.istGanzGewählt()) {
        const auto länge = static_cast<int>(zeile.text().size());
        zeile.setSelection(länge, -länge);
        return;
    }
    zeile.deselect();
    zeile.setCursorPosition(static_cast<int>(m_element.schreibmarke()));
}

void Auswahlbox::focusInEvent(QFocusEvent* ereignis)
{
    QComboBox::focusInEvent(ereignis);
    if (isEditable() && m_ansicht.lebt() && ereignis->reason() != Qt::PopupFocusReason) {
        m_wirdGefüllt = true;
        übernimmStelle();
        m_wirdGefüllt = false;
    }
}

/// Page keys scroll the page; the toolkit would pick another entry. Its own key for lists is no key of the program's,
/// unless `klapptAuf` says so.
void Auswahlbox::keyPressEvent(QKeyEvent* ereignis)
{
    const auto taste = ereignis->key();
    if (klapptAuf(*ereignis)) {
        showPopup();
    } else if (taste == Qt::Key_PageUp || taste == Qt::Key_PageDown || taste == listentasteDesBaukastens) {
        ereignis->ignore();
    } else {
        QComboBox::keyPressEvent(ereignis);
    }
}

/// The toolkit would close the list by its own key already when it asks whether the key is a shortcut.
bool Auswahlbox::eventFilter(QObject* objekt, QEvent* ereignis)
{
    if (ereignis->type() != QEvent::KeyPress && ereignis->type() != QEvent::ShortcutOverride) {
        return QComboBox::eventFilter(objekt, ereignis);
    }
    const auto& taste = *static_cast<QKeyEvent*>(ereignis);
    const bool klappt = klapptAuf(taste);
    if (klappt && ereignis->type() == QEvent::KeyPress) {
        hidePopup();
    }
    if (klappt || taste.key() == listentasteDesBaukastens) {
        ereignis->accept();
        return true;
    }
    return QComboBox::eventFilter(objekt, ereignis);
}

void Auswahlbox::showPopup()
{
    const int breiteste = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width() + em(1);
    view()->setMinimumWidth(std::min(std::max(breiteste, width()), screen()->availableSize().width()));
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
    view()->installEventFilter(this); // asked before the toolkit's own, which knows its own keys
}

QSize Auswahlbox::sizeHint() const
{
    return {em(16.5), QComboBox::minimumSizeHint().height()}; // lists of all nations are not measured
}

QSize Auswahlbox::minimumSizeHint() const
{
    return {em(isEditable() ? 3.9 : 7), sizeHint().height()};
}

void Auswahlbox::initStyleOption(QStyleOptionComboBox* option) const
{
    QComboBox::initStyleOption(option);
    if (!isEditable()) {
        const auto feld = style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
        option->currentText = option->fontMetrics.elidedText(m_text, Qt::ElideRight, feld.width() - 2);
    }
}

/// The page scrolls, whether the box has the focus or not: an answer that the wheel changes is changed unseen.
void Auswahlbox::wheelEvent(QWheelEvent* ereignis)
{
    ereignis->ignore();
}

bool Auswahlbox::event(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ToolTip && toolTip().isEmpty() && !isEditable()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const auto ort = static_cast<QHelpEvent*>(ereignis)->globalPos();
        QToolTip::showText(ort, option.currentText == m_text ? QString() : m_text, this);
        return true;
    }
    return QComboBox::event(ereignis);
}
