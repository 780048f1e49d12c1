#include "oberflaeche/OberflaecheQt.h"

#include "oberflaeche/QtAnwendung.h"
#include "oberflaeche/QtAuge.h"
#include "oberflaeche/QtHand.h"

#include "app/moMain.h"
#include "platform/qt/Datumsbox.h"
#include "platform/qt/Mass.h"
#include "platform/qt/QtOberflaeche.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>
#include <stdexcept>

namespace {

class OberflächeQt : public Oberfläche {
public:
    explicit OberflächeQt(const Schirm& schirm) : m_anwendung(schirm) {}

    std::string_view name() const override { return "qt"; }
    void beginne(Programm& programm) override;
    void beende() override;
    void zeichne() override;

    void klicke(Element& element) override;
    void klickeZeile(Liste& liste, std::size_t zeile) override;
    void doppelklicke(Element& element) override;
    void doppelklickeZeile(Liste& liste, std::size_t zeile) override;
    void klickeKopf(Liste& liste, std::size_t spalte) override;
    void ersetzeText(Textfeld& feld, std::u32string_view text) override;
    void wähleEintrag(Auswahlfeld& feld, std::size_t eintrag) override;
    void wähleDatum(Datumsfeld& feld, const Datum& datum) override;
    void tippe(Element& element, const std::vector<Tastendruck>& tasten) override;
    void fügeEin(Textfeld& feld, std::u32string_view text) override { fügeInFeld(feld, text); }
    void fügeEin(Auswahlfeld& feld, std::u32string_view text) override { fügeInFeld(feld, text); }
    void dreheRad(Element& element, int schritte) override;
    void verlasse(Element& element) override;
    void schließeRahmen() override;
    void verschiebeRahmen(const Lage& lage) override;
    void maximiereRahmen(bool maximiert) override;

    bool istZuSehen(const Element& element) const override;
    bool istFrei(const Element& element) const override;
    bool hatFokus(const Element& element) const override;
    std::string text(const Element& element) const override;
    std::string hinweis(const Element& element) const override;
    Farbe hintergrund(const Element& element) const override;
    bool istAn(const Optionsfeld& feld) const override { return als<QAbstractButton>(feld).isChecked(); }
    bool istAn(const Ankreuzfeld& feld) const override { return als<QAbstractButton>(feld).isChecked(); }
    int wert(const Fortschrittsbalken& balken) const override { return als<QProgressBar>(balken).value(); }
    int wert(const Bildlaufleiste& leiste) const override { return als<QScrollBar>(leiste).value(); }
    std::vector<std::string> einträge(const Auswahlfeld& feld) const override
    {
        return qtauge::einträge(als<QComboBox>(feld));
    }
    std::vector<std::string> zeilen(const Liste& liste) const override { return qtauge::zeilen(als<QTreeView>(liste)); }
    std::vector<std::string> spaltenköpfe(const Liste& liste) const override
    {
        return qtauge::spaltenköpfe(als<QTreeView>(liste));
    }
    std::size_t auswahl(const Liste& liste) const override { return qtauge::auswahl(als<QTreeView>(liste)); }
    bool istOffen(const Bildschirm& bildschirm) const override;
    std::string titel(const Bildschirm& bildschirm) const override;
    Lage lage(const Bildschirm& bildschirm) const override;
    std::string rahmentitel() const override { return qtauge::text(m_qt->rahmenfenster()->windowTitle()); }
    bool istRahmenZuSehen() const override { return m_qt->rahmenfenster()->isVisible(); }
    Lage rahmenlage() const override;

private:
    template <class W> W& als(const Element& element) const;
    QWidget& widget(const Element& element) const;
    const QAction* aktion(const Element& element) const;
    void ruhe();
    /// Scrolls to the element and lets everything take its place.
    QWidget& greife(const Element& element);
    void fokussiere(Element& element);
    void fügeInFeld(Element& element, std::u32string_view text);

    QtAnwendung m_anwendung;
    Zustand* m_zustand = nullptr;
    std::unique_ptr<QtOberfläche> m_qt;
};

/// Number combos and dates, whose whole text is selected when the focus comes by key.
bool istEingabezeile(const Element& element)
{
    const auto* auswahl = dynamic_cast<const Auswahlfeld*>(&element);
    return (auswahl != nullptr && auswahl->istTippbar()) || dynamic_cast<const Datumsfeld*>(&element) != nullptr;
}

/// The widget's place in twips, exact where it is the one that the program wants.
Lage lageVon(const QWidget& fenster, const Lage& gewünscht)
{
    const bool dort = fenster.x() == alsPixel(gewünscht.links) && fenster.y() == alsPixel(gewünscht.oben);
    return dort ? gewünscht
                : Lage{static_cast<double>(alsTwips(fenster.x())), static_cast<double>(alsTwips(fenster.y()))};
}

} // namespace

std::unique_ptr<Oberfläche> erzeugeOberflächeQt(const Schirm& schirm)
{
    return std::make_unique<OberflächeQt>(schirm);
}

void OberflächeQt::beginne(Programm& programm)
{
    m_zustand = &programm.zustand();
    m_qt = std::make_unique<QtOberfläche>(m_zustand->ablauf, m_zustand->folge, m_zustand->rahmen, m_zustand->umgebung);
}

void OberflächeQt::beende()
{
    m_qt.reset();
    ruhe();
}

void OberflächeQt::zeichne()
{
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

/// Lets everything happen that an action has started.
void OberflächeQt::ruhe()
{
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_qt) {
        m_qt->ordne();
    }
}

QWidget& OberflächeQt::widget(const Element& element) const
{
    auto* widget = m_qt->widgetVon(element);
    if (widget == nullptr) {
        throw std::runtime_error("kein Widget für " + element.name());
    }
    return *widget;
}

template <class W> W& OberflächeQt::als(const Element& element) const
{
    auto* w = qobject_cast<W*>(&widget(element));
    if (w == nullptr) {
        throw std::runtime_error("ein anderes Widget für " + element.name());
    }
    return *w;
}

const QAction* OberflächeQt::aktion(const Element& element) const
{
    const auto* eintrag = dynamic_cast<const Menüeintrag*>(&element);
    return eintrag == nullptr ? nullptr : m_qt->aktionVon(*eintrag);
}

QWidget& OberflächeQt::greife(const Element& element)
{
    m_qt->ordne();
    m_qt->bringeInSicht(element);
    m_qt->ordne();
    QWidget& w = widget(element);
    qthand::rolleMitRad(w, qthand::griff(w));
    return w;
}

void OberflächeQt::klicke(Element& element)
{
    if (const auto* eintrag = dynamic_cast<const Menüeintrag*>(&element)) {
        m_qt->aktionVon(*eintrag)->trigger();
    } else {
        QWidget& w = greife(element);
        qthand::klicke(w, qthand::griff(w));
    }
    ruhe();
}

void OberflächeQt::doppelklicke(Element& element)
{
    QWidget& w = greife(element);
    qthand::doppelklicke(w, qthand::griff(w));
    ruhe();
}

void OberflächeQt::klickeZeile(Liste& liste, std::size_t zeile)
{
    greife(liste);
    auto& ansicht = als<QTreeView>(liste);
    qthand::klicke(*ansicht.viewport(), qthand::zeilenort(ansicht, static_cast<int>(zeile) - 1));
    ruhe();
}

void OberflächeQt::doppelklickeZeile(Liste& liste, std::size_t zeile)
{
    greife(liste);
    auto& ansicht = als<QTreeView>(liste);
    qthand::doppelklicke(*ansicht.viewport(), qthand::zeilenort(ansicht, static_cast<int>(zeile) - 1));
    ruhe();
}

void OberflächeQt::klickeKopf(Liste& liste, std::size_t spalte)
{
    greife(liste);
    auto& ansicht = als<QTreeView>(liste);
    qthand::klicke(*ansicht.header()->viewport(), qthand::kopfort(ansicht, static_cast<int>(spalte) - 1));
    ruhe();
}

/// Presses Tab, in the shorter direction, until the element has the focus or a field does not let go.
void OberflächeQt::fokussiere(Element& element)
{
    QWidget& ziel = greife(element);
    const auto& bildschirm = element.bildschirm();
    auto folge = bildschirm.tabFolge();
    std::erase_if(folge, [&](const Element* e) { return e != bildschirm.fokus() && !bildschirm.istErreichbar(*e); });
    const auto ort = [&](const Element* e) { return std::find(folge.begin(), folge.end(), e) - folge.begin(); };
    const auto anzahl = static_cast<std::ptrdiff_t>(folge.size());
    const auto hier = bildschirm.fokus() == nullptr ? -1 : ort(bildschirm.fokus());
    const auto weg = (ort(&element) - hier + anzahl) % anzahl;
    const bool vor = weg * 2 <= anzahl || hier < 0;
    for (auto rest = vor ? weg : anzahl - weg; rest > 0 && !qtauge::hatFokus(ziel); --rest) {
        const auto* vorher = bildschirm.fokus();
        qthand::drücke(ziel, vor ? Qt::Key_Tab : Qt::Key_Backtab, vor ? Qt::NoModifier : Qt::ShiftModifier);
        if (bildschirm.fokus() == vorher) {
            break;
        }
    }
}

void OberflächeQt::ersetzeText(Textfeld& feld, std::u32string_view text)
{
    QWidget& w = greife(feld);
    qthand::klicke(w, qthand::griff(w));
    if (qtauge::hatFokus(w)) {
        qthand::drücke(w, Qt::Key_A, Qt::ControlModifier);
        if (text.empty()) {
            qthand::drücke(w, Qt::Key_Delete);
        } else {
            qthand::tippe(w, text);
        }
    }
    ruhe();
}

void OberflächeQt::wähleEintrag(Auswahlfeld& feld, std::size_t eintrag)
{
    greife(feld);
    qthand::wähle(als<QComboBox>(feld), static_cast<int>(eintrag));
    ruhe();
}

void OberflächeQt::wähleDatum(Datumsfeld& feld, const Datum& datum)
{
    greife(feld);
    qthand::wähle(dynamic_cast<Datumsbox&>(widget(feld)), QDate(datum.jahr, datum.monat, datum.tag));
    ruhe();
}

void OberflächeQt::tippe(Element& element, const std::vector<Tastendruck>& tasten)
{
    const bool hatteFokus = qtauge::hatFokus(widget(element));
    fokussiere(element);
    if (!qtauge::hatFokus(widget(element))) {
        return;
    }
    if (!hatteFokus && istEingabezeile(element)) {
        qthand::drücke(widget(element), Qt::Key_End);
    }
    const auto* const hier = &element.bildschirm(); // the keys may unload it
    for (const auto& druck : tasten) {
        const auto* bildschirm = tastaturbildschirm(m_zustand->folge, hier);
        auto* fenster = bildschirm == nullptr ? nullptr : m_qt->fensterVon(*bildschirm);
        if (fenster == nullptr) {
            break;
        }
        qthand::drücke(*fenster, druck);
        ruhe();
    }
}

void OberflächeQt::dreheRad(Element& element, int schritte)
{
    qthand::dreheRad(greife(element), schritte);
    ruhe();
}

void OberflächeQt::fügeInFeld(Element& element, std::u32string_view text)
{
    QWidget& w = greife(element);
    qthand::klicke(w, qthand::griff(w));
    if (qtauge::hatFokus(w)) {
        qthand::fügeEin(w, text);
    }
    ruhe();
}

void OberflächeQt::verlasse(Element& element)
{
    QWidget& w = greife(element);
    if (qtauge::hatFokus(w)) {
        qthand::drücke(w, Qt::Key_Tab);
    }
    ruhe();
}

void OberflächeQt::schließeRahmen()
{
    m_qt->rahmenfenster()->close();
    ruhe();
}

void OberflächeQt::verschiebeRahmen(const Lage& lage)
{
    m_qt->rahmenfenster()->move(alsPixel(lage.links), alsPixel(lage.oben));
    ruhe();
}

void OberflächeQt::maximiereRahmen(bool maximiert)
{
    m_qt->rahmenfenster()->setWindowState(maximiert ? Qt::WindowMaximized : Qt::WindowNoState);
    ruhe();
}

bool OberflächeQt::istZuSehen(const Element& element) const
{
    if (const auto* eintrag = aktion(element)) {
        const auto* fenster = m_qt->fensterVon(element.bildschirm());
        return eintrag->isVisible() && fenster != nullptr && fenster->isVisible() &&
               m_qt->rahmenfenster()->menuBar()->isVisible();
    }
    m_qt->ordne();
    const auto* w = m_qt->widgetVon(element);
    return w != nullptr && qtauge::istZuSehen(*w);
}

bool OberflächeQt::istFrei(const Element& element) const
{
    if (const auto* eintrag = aktion(element)) {
        return eintrag->isEnabled() && m_qt->rahmenfenster()->menuBar()->isEnabled();
    }
    const auto* w = m_qt->widgetVon(element);
    return w == nullptr ? element.istFrei() : qtauge::istFrei(*w);
}

bool OberflächeQt::hatFokus(const Element& element) const
{
    const auto* w = m_qt->widgetVon(element);
    return w != nullptr && qtauge::hatFokus(*w);
}

std::string OberflächeQt::text(const Element& element) const
{
    if (const auto* eintrag = aktion(element)) {
        return qtauge::text(eintrag->text());
    }
    const auto* w = m_qt->widgetVon(element);
    return w == nullptr ? element.text() : qtauge::text(element, *w);
}

std::string OberflächeQt::hinweis(const Element& element) const
{
    const auto* w = m_qt->widgetVon(element);
    return w == nullptr ? element.hinweis() : qtauge::text(w->toolTip());
}

Farbe OberflächeQt::hintergrund(const Element& element) const
{
    const auto* w = m_qt->widgetVon(element);
    return w == nullptr ? element.hintergrund() : qtauge::hintergrund(element, *w);
}

bool OberflächeQt::istOffen(const Bildschirm& bildschirm) const
{
    const auto* fenster = m_qt->fensterVon(bildschirm);
    return fenster != nullptr && fenster->isVisible();
}

std::string OberflächeQt::titel(const Bildschirm& bildschirm) const
{
    // a page has no window of its own that could show its caption
    const auto* fenster = bildschirm.istKindfenster ? m_qt->fensterVon(bildschirm) : nullptr;
    return fenster == nullptr ? bildschirm.titel() : qtauge::text(fenster->windowTitle());
}

Lage OberflächeQt::lage(const Bildschirm& bildschirm) const
{
    const Lage gewünscht{bildschirm.links, bildschirm.oben};
    const auto* fenster = bildschirm.istKindfenster ? m_qt->fensterVon(bildschirm) : nullptr;
    return fenster == nullptr ? gewünscht : lageVon(*fenster, gewünscht);
}

Lage OberflächeQt::rahmenlage() const
{
    return lageVon(*m_qt->rahmenfenster(), {m_zustand->rahmen.links(), m_zustand->rahmen.oben()});
}
