#include "platform/qt/Knoepfe.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <array>

namespace {

using Rolle = Schaltfläche::Rolle;

/// What the style sheet calls it.
struct Rollenname {
    Rolle rolle;
    const char* name;
};
constexpr std::array<Rollenname, 7> rollennamen{{
    {Rolle::Gewöhnlich, ""},
    {Rolle::Haupt, "haupt"},
    {Rolle::Gefahr, "gefahr"},
    {Rolle::Füller, "fueller"},
    {Rolle::Weg, "weg"},
    {Rolle::Decke, "decke"},
    {Rolle::Gedrückt, "gedrueckt"},
}};

QSizePolicy::Policy waagrecht(Rolle rolle)
{
    return rolle == Rolle::Weg || rolle == Rolle::Decke ? QSizePolicy::Expanding : QSizePolicy::Fixed;
}

} // namespace

Knopf::Knopf(Schaltfläche& element, Ansicht& ansicht, QWidget* eltern)
    : QPushButton(eltern), m_element(element), m_ansicht(ansicht)
{
    setProperty("rolle", std::ranges::find(rollennamen, element.rolle(), &Rollenname::rolle)->name);
    setSizePolicy(waagrecht(element.rolle()), QSizePolicy::Fixed);
    setAutoDefault(false);
    if (element.rolle() == Rolle::Füller) {
        setFixedSize(em(1.55), em(1.35));
    }
    connect(this, &QPushButton::clicked, this, [this] { m_ansicht.ereignis([this] { m_element.klicke(); }); });
    ansicht.binde(element, *this, [this] { übernimm(); });
}

void Knopf::seiWertdecke()
{
    m_istWertdecke = true;
    setProperty("rolle", "wertdecke");
    style()->unpolish(this);
    style()->polish(this);
}

void Knopf::übernimm()
{
    auto text = alsMehrzeiler(m_element.text());
    if (m_element.rolle() == Rolle::Weg) {
        text.replace(QStringLiteral("- "), QStringLiteral("-\n"));
    }
    setText(text);
}

QSize Knopf::sizeHint() const
{
    if (m_element.rolle() == Rolle::Decke && !m_istWertdecke) {
        return {em(2), em(1.4)}; // as large as what it covers
    }
    const QSize ihre = QPushButton::sizeHint();
    return m_element.rolle() == Rolle::Weg ? ihre.expandedTo({em(13), em(3)}) : ihre;
}

bool Knopf::event(QEvent* ereignis)
{
    if (ereignis->type() != QEvent::Shortcut) {
        return QPushButton::event(ereignis);
    }
    // The mnemonic acts at once, and only if the field that has the focus lets go.
    m_ansicht.ereignis([this] { m_ansicht.bildschirm().drückeKürzel(m_element); });
    return true;
}

Optionsknopf::Optionsknopf(Optionsfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QRadioButton(eltern), m_element(element), m_ansicht(ansicht)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setAutoExclusive(false); // the group of the elements sees to it
    ansicht.binde(element, *this, [this] {
        setText(alsQString(m_element.text()));
        setChecked(m_element.istAn());
    });
}

void Optionsknopf::seiZelle(int breite, int höhe)
{
    m_zelle = QSize(breite, höhe);
    setProperty("rolle", "zelle");
    setFixedSize(m_zelle);
}

QSize Optionsknopf::sizeHint() const
{
    return m_zelle.isEmpty() ? QRadioButton::sizeHint().expandedTo({0, em(1.28)}) : m_zelle;
}

void Optionsknopf::nextCheckState()
{
    m_ansicht.ereignis([this] { m_element.klicke(); });
}

bool Optionsknopf::hitButton(const QPoint& ort) const
{
    return m_zelle.isEmpty() ? QRadioButton::hitButton(ort) : rect().contains(ort);
}

/// The second press of a double click is no click of its own: it would mark again what the double click has
/// unmarked.
void Optionsknopf::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() == Qt::LeftButton && hitButton(ereignis->position().toPoint())) {
        m_ansicht.ereignis([this] { m_element.doppelklicke(); });
    }
}

void Optionsknopf::paintEvent(QPaintEvent* ereignis)
{
    if (m_zelle.isEmpty()) {
        QRadioButton::paintEvent(ereignis);
        return;
    }
    QPainter maler(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    const QRect zeichen = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
    if (hasFocus()) {
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(QPen(farben().fokus, 2));
        const int seite = em(1.2);
        maler.drawRoundedRect(QRectF((width() - seite) / 2.0, (height() - seite) / 2.0, seite, seite), 3, 3);
        maler.setRenderHint(QPainter::Antialiasing, false);
    }
    maler.translate(rect().center() - zeichen.center());
    option.rect = zeichen;
    style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &maler, this);
}

Ankreuzkästchen::Ankreuzkästchen(Ankreuzfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QCheckBox(eltern), m_element(element), m_ansicht(ansicht)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    ansicht.binde(element, *this, [this] {
        setText(alsQString(m_element.text()));
        setChecked(m_element.istAn());
    });
}

void Ankreuzkästchen::nextCheckState()
{
    m_ansicht.ereignis([this] { m_element.klicke(); });
}
