#include "platform/qt/Probe.h"

#include "platform/qt/Stil.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

/// One application for all tests of the process that need one, on a platform that needs no screen.
class Anwendung : public ::testing::Environment {
public:
    void stelleBereit()
    {
        if (m_anwendung == nullptr) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            m_anwendung = std::make_unique<QApplication>(m_argc, m_argv);
            richteStilEin(*m_anwendung, Thema::Hell);
        }
    }
    void TearDown() override { m_anwendung.reset(); }

private:
    std::string m_name = "einheiten";
    char* m_argv[2] = {m_name.data(), nullptr};
    int m_argc = 1;
    std::unique_ptr<QApplication> m_anwendung;
};

Anwendung* const anwendung = [] {
    auto* neue = new Anwendung; // belongs to the test framework
    ::testing::AddGlobalTestEnvironment(neue);
    return neue;
}();

} // namespace

void stelleAnwendungBereit()
{
    anwendung->stelleBereit();
}

Probebildschirm::Probebildschirm() : Bildschirm("frmProbe"_t)
{
    ordneAn();
    for (int i = 1; i <= 14; ++i) {
        lblZeile(i).setzeText(verbinde("Zeile "_t, std::to_string(i)));
        comboZahl(i).fülle({"k.A.", "1", "2", "10"}, "k.A.");
    }
    for (int i = 1; i <= 3; ++i) {
        optWas(i).setzeText(verbinde("Was "_t, std::to_string(i)));
        optWas(i).trittBei(gruppe);
        optWas(i).setzePfeileMarkieren(false);
    }
    comboArt.fülle({"keine Angaben", "erste Art", "zweite Art"}, "erste Art");
    DTPicker.setzeDatum({2007, 8, 2});
    cmdDecke.verberge();
    beiEscape = &cmdExit;
}

void Probebildschirm::ordneAn()
{
    using namespace anordnung;
    kopfband.titel = &lblHeader;
    kopfband.name = &lblName;
    menü = {{&mnDatei, {&mnEnde}}};
    std::vector<Anordnung> zeilen;
    for (int i = 1; i <= 14; ++i) {
        zeilen.push_back(tabellenzeile(lblZeile(i), {&triJaNein(i), &comboZahl(i)}));
    }
    const std::vector<Tabellenspalte> köpfe{{std::string("intern"), {}, &cmdFüller},
                                            {std::string("Anzahl"), {}, nullptr}};
    auto links =
        spalte({karte({}, formular({feld("Name:"_t, tbName), feld("Memo:"_t, tbMemo), feld(lblFrage, comboArt),
                                    feld("Datum:"_t, DTPicker, 10)})),
                karte("Was"_t, decke(spalte({element(optWas(1)), element(optWas(2)), element(optWas(3))}), cmdDecke)),
                karte({}, element(cbHaken)), karte("Liste"_t, füllend(element(lvw)))});
    aufbau = karten({std::move(links), spalte({karte({}, tabelle("Tabelle"_t, köpfe, std::move(zeilen)))})});
    leiste.rechts = {&cmdOK, &cmdExit};
}

Fensterprobe::Fensterprobe()
{
    stelleAnwendungBereit();
    oberfläche = std::make_unique<QtOberfläche>(ablauf, folge, rahmen, umgebung);
}

Fensterprobe::~Fensterprobe()
{
    oberfläche.reset();
    lasseGeschehen();
}

void Fensterprobe::öffne()
{
    rahmen.setzeGröße(1366 * 15, 768 * 15);
    rahmen.zeige(true);
    ablauf.ereignis([this] { folge.zeige(*bildschirm); });
    lasseGeschehen();
    oberfläche->ordne();
}

void Fensterprobe::lasseGeschehen()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget& Fensterprobe::widget(const Element& element) const
{
    auto* ergebnis = oberfläche->widgetVon(element);
    if (ergebnis == nullptr) {
        throw std::logic_error("no widget for " + element.name());
    }
    return *ergebnis;
}

void Fensterprobe::klicke(QWidget& widget, QPoint ort, bool doppelt)
{
    const auto sende = [&](QEvent::Type art, Qt::MouseButtons gedrückt) {
        QMouseEvent ereignis(art, ort, widget.mapToGlobal(ort), Qt::LeftButton, gedrückt, Qt::NoModifier);
        QApplication::sendEvent(&widget, &ereignis);
    };
    sende(doppelt ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, Qt::LeftButton);
    sende(QEvent::MouseButtonRelease, Qt::NoButton);
}

void Fensterprobe::klicke(const Element& element) const
{
    klicke(widget(element), widget(element).rect().center());
}

void Fensterprobe::drücke(QWidget& widget, int taste, const QString& text, Qt::KeyboardModifiers zusatz)
{
    QKeyEvent ereignis(QEvent::KeyPress, taste, zusatz, text);
    QApplication::sendEvent(&widget, &ereignis);
}

void Fensterprobe::tippe(QWidget& widget, const QString& text)
{
    for (const QChar zeichen : text) {
        drücke(widget, zeichen.toUpper().unicode(), QString(zeichen));
    }
}

void Fensterprobe::dreheRad(QWidget& widget) const
{
    const QPoint mitte = widget.rect().center();
    QWheelEvent ereignis(mitte, widget.mapToGlobal(mitte), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &ereignis);
}

QWidget& Fensterprobe::tastatur() const
{
    auto* fenster = oberfläche->fensterVon(*bildschirm)->window();
    return fenster->focusWidget() == nullptr ? *fenster : *fenster->focusWidget();
}
