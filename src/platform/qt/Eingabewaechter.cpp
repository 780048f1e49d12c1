#include "platform/qt/Eingabewaechter.h"

#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Reihengang.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Datumsbox.h"
#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Textbox.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<int, Taste::Art>, 17> sondertasten{{
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
    {Qt::Key_F1, Taste::Art::F1},
    {Qt::Key_F4, Taste::Art::F4},
}};

std::optional<char> getipptesZeichen(const QKeyEvent& ereignis, bool kombination)
{
    if (kombination) { // its text is a control character; the key tells the letter
        const int taste = ereignis.key();
        const bool istBuchstabe = taste >= 0x20 && taste < 0x7F;
        return istBuchstabe ? std::optional(klein(static_cast<char>(taste))) : std::nullopt;
    }
    const auto zeichen = ereignis.text().toUcs4();
    return zeichen.size() == 1 && zeichen.front() >= 0x20 ? nächstesZeichen(static_cast<char32_t>(zeichen.front()))
                                                          : std::nullopt;
}

/// What the toolkit does by itself: editing texts and dates, opening a list. Ctrl with something is a matter of texts
/// (copying, words, the start of the text), Alt with something is not.
bool istSacheDesWidgets(const QWidget& widget, const Taste& taste)
{
    if (const auto* box = dynamic_cast<const Auswahlbox*>(&widget)) {
        constexpr std::string_view kopieren = "acvx"; // others would change the text past the type-ahead
        const bool kopiert = taste.strg && !taste.alt && taste.art == Taste::Art::Zeichen &&
                             kopieren.find(taste.zeichen) != std::string_view::npos;
        const bool klapptMitLeertaste = !taste.istKombination() && taste.istLeertaste();
        return taste.klapptAuf() || (box->isEditable() ? kopiert : klapptMitLeertaste);
    }
    const bool mehrzeilig = dynamic_cast<const Textblock*>(&widget) != nullptr;
    if (taste.alt || (!mehrzeilig && dynamic_cast<const QLineEdit*>(&widget) == nullptr)) {
        return false;
    }
    const bool bewegt = taste.art == Taste::Art::Auf || taste.art == Taste::Art::Ab ||
                        taste.art == Taste::Art::BildAuf || taste.art == Taste::Art::BildAb;
    if (bewegt && !taste.strg && dynamic_cast<const Datumsbox*>(&widget) != nullptr) {
        return false; // the element of a date has rules for them
    }
    return !taste.gehörtDemBildschirm() || (mehrzeilig && !taste.strg && taste.art == Taste::Art::Eingabe);
}

/// To the element, and what that has no use for to its screen; whether anybody had.
bool gibLogik(Ansicht& ansicht, Element* element, const Taste& taste)
{
    bool benutzt = false;
    ansicht.ereignis([&] {
        auto& bildschirm = ansicht.bildschirm();
        if (element != nullptr && bildschirm.istErreichbar(*element)) {
            benutzt = gibTaste(*element, taste) || (ansicht.lebt() && geheInReihe(*element, taste));
        }
        if (!benutzt && ansicht.lebt()) {
            benutzt = bildschirm.taste(taste);
        }
    });
    return benutzt;
}

} // namespace

std::optional<Taste> alsTaste(const QKeyEvent& ereignis)
{
    const auto zusatz = ereignis.modifiers();
    const bool meta = zusatz.testFlag(Qt::MetaModifier); // as both, which means nothing anywhere
    const bool strg = meta || zusatz.testFlag(Qt::ControlModifier);
    const bool alt = meta || zusatz.testFlag(Qt::AltModifier);
    const auto zeichen = ereignis.text().toUcs4();
    const bool istAltGr = !meta && strg && alt && zeichen.size() == 1 && zeichen.front() > 0x20;
    Taste taste{Taste::Art::Zeichen, 0, zusatz.testFlag(Qt::ShiftModifier), strg && !istAltGr, alt && !istAltGr};
    const auto ort = std::ranges::find_if(sondertasten, [&](const auto& paar) { return paar.first == ereignis.key(); });
    if (ort != sondertasten.end()) {
        taste.art = ort->second;
        return taste;
    }
    const auto byte = getipptesZeichen(ereignis, taste.istKombination());
    taste.zeichen = byte.value_or('\0');
    const bool istZeichen = byte || (!zeichen.isEmpty() && zeichen.front() >= 0x20);
    return istZeichen ? std::optional(taste) : std::nullopt;
}

Eingabewächter::Eingabewächter(std::function<Ansicht*(const QWidget*)> ansichtVon) : m_ansichtVon(std::move(ansichtVon))
{
    qApp->installEventFilter(this);
}

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
    const bool drückt = taste->art == Taste::Art::Zeichen || taste->art == Taste::Art::Eingabe;
    if (ereignis.isAutoRepeat() && drückt && dynamic_cast<QAbstractButton*>(feld) != nullptr) {
        return true; // a key that is held down presses once
    }
    if (taste->art == Taste::Art::Zeichen && taste->zeichen == 0) {
        meldeFilter(widget, {.text = {}, .verweigert = true}, 0); // nothing that could be stored
        return true;
    }
    if (auto* box = dynamic_cast<Auswahlbox*>(feld); box != nullptr && box->isEditable()) {
        box->gleicheSchreibmarkeAb(taste->art == Taste::Art::Zeichen || taste->art == Taste::Art::Rück ||
                                   taste->art == Taste::Art::Entf);
    }
    const bool benutzt = gibLogik(*ansicht, element, *taste);
    const bool blättert = taste->art == Taste::Art::BildAuf || taste->art == Taste::Art::BildAb;
    // a page scrolls with the keys that nobody has used, and help may be had everywhere
    return benutzt || taste->istKombination() || !(blättert || taste->art == Taste::Art::F1);
}
