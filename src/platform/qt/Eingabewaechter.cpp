#include "platform/qt/Eingabewaechter.h"

#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Reihengang.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Datumsbox.h"
#include "platform/qt/Textbox.h"
#include "platform/text/Eingabe.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<int, Taste::Art>, 16> sondertasten{{
    {Qt::Key_Backspace, Taste::Art::Rück},
    {Qt::Key_Delete, Taste::Art::Entf},
    {Qt::Key_Left, Taste::Art::Links},
    {Qt::Key_Right, Taste::Art::Rechts},
    {Qt::Key_Up, Taste::Art::Auf},
    {Qt::Key_Down, Taste::Art::Ab},
    {Qt::Key_Home, Taste::Art::Pos1},
    {Qt::Key_End, Taste::Art::Ende},
    {Qt::Key_Tab, Taste::Art::Tab},
    {Qt::Key_Backtab, Taste::Art::RückTab},
    {Qt::Key_Return, Taste::Art::Eingabe},
    {Qt::Key_Enter, Taste::Art::Eingabe},
    {Qt::Key_Escape, Taste::Art::Esc},
    {Qt::Key_PageUp, Taste::Art::BildAuf},
    {Qt::Key_PageDown, Taste::Art::BildAb},
    {Qt::Key_Space, Taste::Art::Zeichen},
}};

std::optional<Taste> alsTaste(const QKeyEvent& ereignis)
{
    const auto zusatz = ereignis.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool istAltGr = zusatz == (Qt::ControlModifier | Qt::AltModifier) && !ereignis.text().isEmpty();
    if (zusatz != 0 && !istAltGr) {
        return std::nullopt;
    }
    const auto ort = std::find_if(sondertasten.begin(), sondertasten.end(),
                                  [&](const auto& paar) { return paar.first == ereignis.key(); });
    if (ort != sondertasten.end() && ort->second != Taste::Art::Zeichen) {
        return Taste{ort->second, 0};
    }
    const auto zeichen = ereignis.text().toUcs4();
    if (zeichen.size() != 1 || zeichen.front() < 0x20) {
        return std::nullopt;
    }
    const auto byte = nächstesZeichen(static_cast<char32_t>(zeichen.front()));
    return byte ? std::optional(Taste{Taste::Art::Zeichen, *byte}) : std::nullopt;
}

/// Tab, Return and Escape are the screen's even in a text.
bool gehörtDemBildschirm(const Taste& taste)
{
    return taste.art == Taste::Art::Tab || taste.art == Taste::Art::RückTab || taste.art == Taste::Art::Eingabe ||
           taste.art == Taste::Art::Esc;
}

/// What the toolkit does by itself: editing texts and dates, opening a list.
bool istSacheDesWidgets(const QWidget& widget, const Taste& taste)
{
    if (dynamic_cast<const Textblock*>(&widget) != nullptr) {
        return !gehörtDemBildschirm(taste) || taste.art == Taste::Art::Eingabe;
    }
    if (dynamic_cast<const Textzeile*>(&widget) != nullptr || dynamic_cast<const Datumsbox*>(&widget) != nullptr) {
        return !gehörtDemBildschirm(taste);
    }
    const auto* box = dynamic_cast<const Auswahlbox*>(&widget);
    return box != nullptr && !box->isEditable() && taste.art == Taste::Art::Zeichen && taste.zeichen == ' ';
}

} // namespace

Eingabewächter::Eingabewächter(std::function<Ansicht*(const QWidget*)> ansichtVon) : m_ansichtVon(std::move(ansichtVon))
{
    qApp->installEventFilter(this);
}

Eingabewächter::~Eingabewächter() = default;

bool Eingabewächter::eventFilter(QObject* objekt, QEvent* ereignis)
{
    auto* widget = objekt->isWidgetType() ? static_cast<QWidget*>(objekt) : nullptr;
    if (widget == nullptr) {
        return false;
    }
    switch (ereignis->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return beiMaus(*widget, *static_cast<QMouseEvent*>(ereignis));
    case QEvent::KeyPress:
        return beiTaste(*widget, *static_cast<QKeyEvent*>(ereignis));
    default:
        return false;
    }
}

bool Eingabewächter::beiMaus(QWidget& widget, const QMouseEvent& ereignis)
{
    if (ereignis.type() == QEvent::MouseButtonRelease) {
        return std::exchange(m_verschluckt, false);
    }
    if (ereignis.type() == QEvent::MouseButtonPress) {
        m_gedrücktes = &widget;
    }
    m_verschluckt = m_gedrücktes == nullptr || !m_gedrücktes->isVisible();
    if (m_verschluckt) {
        return true;
    }
    auto* ansicht = m_ansichtVon(&widget);
    auto* element = ansicht == nullptr ? nullptr : ansicht->elementVon(&widget);
    if (element == nullptr || !element->nimmtFokus() || !widget.isEnabled()) {
        return false;
    }
    ansicht->ereignis([&] { m_verschluckt = !ansicht->bildschirm().fokussiere(element); });
    return m_verschluckt;
}

bool Eingabewächter::gibElement(Ansicht& ansicht, Element& element, const Taste& taste)
{
    auto& bildschirm = ansicht.bildschirm();
    if (!bildschirm.istErreichbar(element)) {
        return false;
    }
    return element.taste(taste) || (ansicht.lebt() && geheInReihe(element, taste));
}

bool Eingabewächter::beiTaste(QWidget& widget, const QKeyEvent& ereignis)
{
    const auto taste = alsTaste(ereignis);
    auto* ansicht = m_ansichtVon(&widget);
    if (!taste || ansicht == nullptr || QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    auto* element = ansicht->elementVon(&widget);
    auto* feld = element == nullptr ? nullptr : ansicht->widgetVon(*element);
    if (feld != nullptr && istSacheDesWidgets(*feld, *taste)) {
        return false;
    }
    if (ereignis.isAutoRepeat() && taste->art == Taste::Art::Zeichen &&
        dynamic_cast<QAbstractButton*>(feld) != nullptr) {
        return true; // a key that is held down presses once
    }
    if (auto* box = dynamic_cast<Auswahlbox*>(feld); box != nullptr && box->isEditable()) {
        box->gleicheSchreibmarkeAb(taste->art == Taste::Art::Zeichen || taste->art == Taste::Art::Rück ||
                                   taste->art == Taste::Art::Entf);
    }
    if (auto* datum = dynamic_cast<Datumsbox*>(feld)) {
        datum->interpretText(); // what was typed counts before the screen acts on it
    }
    bool benutzt = false;
    ansicht->ereignis([&] {
        benutzt = element != nullptr && gibElement(*ansicht, *element, *taste);
        if (!benutzt && ansicht->lebt()) {
            benutzt = ansicht->bildschirm().taste(*taste);
        }
    });
    const bool blättert = taste->art == Taste::Art::BildAuf || taste->art == Taste::Art::BildAb;
    return benutzt || !blättert; // a page scrolls with the keys that nobody has used
}
