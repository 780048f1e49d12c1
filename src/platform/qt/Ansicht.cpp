#include "platform/qt/Ansicht.h"

#include "platform/qt/Geduld.h"
#include "platform/qt/Umschrift.h"

#include <QAction>
#include <QWidget>

namespace {

void zeichneGemeinsames(const Element& element, QWidget& widget)
{
    if (widget.isHidden() == element.istSichtbar()) {
        widget.setVisible(element.istSichtbar());
    }
    if (widget.isEnabledTo(widget.parentWidget()) != element.istFrei()) {
        widget.setEnabled(element.istFrei());
    }
    if (const auto hinweis = alsQString(element.hinweis()); widget.toolTip() != hinweis) {
        widget.setToolTip(hinweis);
    }
}

} // namespace

void Ansicht::ereignis(const std::function<void()>& aktion)
{
    if (m_lebt) {
        m_bühne.ereignis(aktion);
    }
}

void Ansicht::abonniere(Melder<>& melder, std::function<void()> ruf)
{
    m_abonnements.push_back(melder.abonniere(std::move(ruf)));
}

void Ansicht::folge(Melder<>& melder, std::function<void()> ruf)
{
    ruf();
    abonniere(melder, std::move(ruf));
}

void Ansicht::binde(Element& element, QWidget& widget, std::function<void()> zeichne)
{
    m_widgets.emplace(&element, &widget);
    m_elemente.emplace(&widget, &element);
    widget.setObjectName(alsQString(element.name()));
    widget.setFocusPolicy(element.nimmtFokus() ? Qt::TabFocus : Qt::NoFocus);
    folge(element.geändert, [&element, &widget, zeichne = std::move(zeichne)] {
        geduld::prüfe();
        zeichneGemeinsames(element, widget);
        rufe(zeichne);
    });
}

void Ansicht::binde(Menüeintrag& eintrag, QAction& aktion)
{
    m_aktionen.emplace(&eintrag, &aktion);
    aktion.setObjectName(alsQString(eintrag.name()));
    folge(eintrag.geändert, [&eintrag, &aktion] {
        aktion.setText(alsQString(eintrag.text()));
        aktion.setVisible(eintrag.istSichtbar());
        aktion.setEnabled(eintrag.istFrei());
    });
}

QWidget* Ansicht::widgetVon(const Element& element) const
{
    const auto ort = m_widgets.find(&element);
    return ort == m_widgets.end() ? nullptr : ort->second;
}

QAction* Ansicht::aktionVon(const Menüeintrag& eintrag) const
{
    const auto ort = m_aktionen.find(&eintrag);
    return ort == m_aktionen.end() ? nullptr : ort->second;
}

Element* Ansicht::elementVon(const QWidget* widget) const
{
    for (; widget != nullptr && m_lebt; widget = widget->parentWidget()) {
        if (const auto ort = m_elemente.find(widget); ort != m_elemente.end()) {
            return ort->second;
        }
    }
    return nullptr;
}

void Ansicht::löse()
{
    m_lebt = false;
    m_abonnements.clear();
    m_widgets.clear();
    m_elemente.clear();
    m_aktionen.clear();
}
