#include "platform/qt/Etikett.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

QStringList brich(const QString& absatz, const QFont& schriftart, int breite)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    QTextLayout satz(absatz, schriftart);
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

/// The text as it fits into the place: whole where it does, else its lines cut with "…". `bricht`: lines are broken
/// between words first.
QString kürze(const QString& text, const QSize& platz, const QFont& schriftart, bool bricht)
{
    const QFontMetrics maß(schriftart);
    QStringList zeilen;
    for (const auto& absatz : text.split(QChar('\n'))) {
        zeilen += bricht ? brich(absatz, schriftart, platz.width()) : QStringList{absatz};
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

} // namespace

Etikett::Etikett(const QString& text, QWidget* eltern) : QLabel(text, eltern)
{
    setTextFormat(Qt::PlainText);
    setIndent(em(0.08)); // else a "J" at the start loses a pixel
}

Etikett::Etikett(Beschriftung& element, Ansicht& ansicht, QWidget* eltern) : Etikett(QString(), eltern)
{
    m_element = &element;
    m_ansicht = &ansicht;
    ansicht.binde(element, *this, [this] {
        zeigeText(alsMehrzeiler(m_element->text()));
        zeichneZeilenart();
    });
}

void Etikett::zeigeText(const QString& ganzer)
{
    auto neu = ganzer;
    if (m_brichtAmBindestrich) {
        neu.replace(QStringLiteral("- "), QStringLiteral("-\n"));
    }
    if (text() != neu) {
        setText(neu);
        updateGeometry();
    }
}

void Etikett::zeichneZeilenart()
{
    if (!m_istListenzelle && m_element->zeilenart() == Beschriftung::Zeilenart::Gewöhnlich) {
        return;
    }
    m_istListenzelle = true;
    const auto art = m_element->zeilenart();
    const bool markiert = art == Beschriftung::Zeilenart::Markiert;
    QPalette farbig;
    if (markiert) {
        farbig.setColor(QPalette::Window, farben().akzent);
        farbig.setColor(QPalette::WindowText, farben().aufakzent);
    } else if (art == Beschriftung::Zeilenart::Hauptdiagnose) {
        farbig.setColor(QPalette::Active, QPalette::WindowText, farben().akzent);
        farbig.setColor(QPalette::Inactive, QPalette::WindowText, farben().akzent);
    }
    setPalette(farbig);
    setAutoFillBackground(markiert);
    setFont(schrift(art == Beschriftung::Zeilenart::Hauptdiagnose ? Schriftrolle::Wert : Schriftrolle::Grund));
}

void Etikett::setzeUmbruchbreite(int breite)
{
    m_umbruchbreite = breite;
    setWordWrap(true);
    setFixedWidth(breite);
}

void Etikett::brichAmBindestrich()
{
    m_brichtAmBindestrich = true;
    zeigeText(text());
}

const Etikett::Textmaß& Etikett::textmaß() const
{
    if (m_maß.text != text() || m_maß.schrift != font()) {
        constexpr int endlos = QWIDGETSIZE_MAX;
        const QRect zeile = fontMetrics().boundingRect(0, 0, endlos, endlos, Qt::AlignLeft, text());
        m_maß = {text(), font(), QFontMetricsF(font()).horizontalAdvance(text()), zeile.height()};
    }
    return m_maß;
}

qreal Etikett::textbreite() const
{
    return textmaß().breite;
}

/// What the base class leaves free round the text.
QSize Etikett::rand() const
{
    const auto ränder = contentsMargins();
    const int einzug = std::max(0, indent());
    const bool hebt = alignment().testFlag(Qt::AlignTop) || alignment().testFlag(Qt::AlignBottom);
    return QSize(ränder.left() + ränder.right() + einzug, ränder.top() + ränder.bottom() + (hebt ? einzug : 0)) +
           QSize(2 * margin(), 2 * margin());
}

bool Etikett::stehtInEinerZeile(int breite) const
{
    return textbreite() <= breite && !text().contains(QChar('\n'));
}

/// A layout asks again and again, for every width that it considers; the base class would break the text each time.
int Etikett::heightForWidth(int breite) const
{
    return wordWrap() && stehtInEinerZeile(breite - rand().width())
               ? std::max(textmaß().zeilenhöhe + rand().height(), minimumHeight())
               : QLabel::heightForWidth(breite);
}

QSize Etikett::sizeHint() const
{
    if (m_umbruchbreite > 0) {
        return {m_umbruchbreite, heightForWidth(m_umbruchbreite)};
    }
    if (hasHeightForWidth()) { // the base class would look for the finest proportion of a text in several lines
        const int breite = qCeil(textbreite()) + rand().width();
        return {breite, heightForWidth(breite)};
    }
    return QLabel::sizeHint();
}

QSize Etikett::minimumSizeHint() const
{
    if (m_umbruchbreite > 0) {
        return sizeHint();
    }
    constexpr double absatzbreite = 30; // lines that somebody has broken by hand are no name
    const QSize ganze = hasHeightForWidth() ? sizeHint() : QLabel::minimumSizeHint();
    const double höchstens = text().contains(QChar('\n')) ? absatzbreite : m_mindestbreite;
    return {std::min(ganze.width(), em(höchstens)), ganze.height()};
}

/// Where the base class puts the text.
QRect Etikett::textplatz() const
{
    QRect platz = contentsRect();
    const int einzug = std::max(0, indent());
    if (alignment().testFlag(Qt::AlignLeft)) {
        platz.setLeft(platz.left() + einzug);
    } else if (alignment().testFlag(Qt::AlignRight)) {
        platz.setRight(platz.right() - einzug);
    }
    if (alignment().testFlag(Qt::AlignBottom)) {
        platz.setBottom(platz.bottom() - einzug);
    }
    return platz;
}

QString Etikett::gezeigterText() const
{
    if (const QSize gewünscht = QLabel::sizeHint(); !wordWrap() && gewünscht.boundedTo(size()) == gewünscht) {
        return text(); // it has all that it wants, which the layout has measured
    }
    const QSize platz = textplatz().size();
    return stehtInEinerZeile(platz.width()) ? text() : kürze(text(), platz, font(), wordWrap());
}

void Etikett::paintEvent(QPaintEvent* ereignis)
{
    const auto kurz = gezeigterText();
    if (kurz == text()) {
        QLabel::paintEvent(ereignis);
        return;
    }
    QPainter maler(this);
    style()->drawItemText(&maler, textplatz(), static_cast<int>(alignment()), palette(), isEnabled(), kurz,
                          foregroundRole());
}

bool Etikett::event(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ToolTip && gezeigterText() != text()) {
        auto ganzer = text();
        ganzer.replace(QStringLiteral("-\n"), QStringLiteral("- "));
        QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(),
                           toolTip().isEmpty() ? ganzer : ganzer + QChar('\n') + toolTip(), this);
        return true;
    }
    return QLabel::event(ereignis);
}

void Etikett::mousePressEvent(QMouseEvent* ereignis)
{
    m_gedrückt = m_element != nullptr && ereignis->button() == Qt::LeftButton;
    ereignis->setAccepted(m_gedrückt);
}

void Etikett::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (std::exchange(m_gedrückt, false) && rect().contains(ereignis->position().toPoint())) {
        m_ansicht->ereignis([this] { m_element->klicke(); });
    }
}

void Etikett::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    if (m_element != nullptr && ereignis->button() == Qt::LeftButton) {
        m_ansicht->ereignis([this] { m_element->doppelklicke(); });
    }
}
