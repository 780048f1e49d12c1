#include "platform/qt/QtOberflaeche.h"

#include "platform/qt/Fensterwart.h"
#include "platform/qt/Vorlesen.h"

#include <QCoreApplication>

QtOberfläche::QtOberfläche(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung)
    : m_wart(std::make_unique<Fensterwart>(ablauf, folge, rahmen, umgebung))
{
    richteVorlesenEin();
}

QtOberfläche::~QtOberfläche() = default;

QMainWindow* QtOberfläche::rahmenfenster() const
{
    return &m_wart->rahmenfenster();
}

QWidget* QtOberfläche::widgetVon(const Element& element) const
{
    const auto* platz = m_wart->platzVon(&element.bildschirm());
    return platz == nullptr ? nullptr : platz->ansicht->widgetVon(element);
}

QAction* QtOberfläche::aktionVon(const Menüeintrag& eintrag) const
{
    const auto* platz = m_wart->platzVon(&eintrag.bildschirm());
    return platz == nullptr ? nullptr : platz->ansicht->aktionVon(eintrag);
}

QWidget* QtOberfläche::fensterVon(const Bildschirm& bildschirm) const
{
    const auto* platz = m_wart->platzVon(&bildschirm);
    return platz == nullptr ? nullptr : platz->fenster;
}

void QtOberfläche::bringeInSicht(const Element& element) const
{
    if (auto* widget = widgetVon(element)) {
        rolleInSicht(*widget);
    }
}

void QtOberfläche::ordne() const
{
    constexpr int runden = 4; // heights follow widths, down to the tables in the cards
    for (int i = 0; i < runden; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
}
