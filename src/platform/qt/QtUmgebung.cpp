#include "platform/qt/QtUmgebung.h"

#include "platform/mappe/Tabellenprogramm.h"
#include "platform/qt/Geduld.h"
#include "platform/qt/Mass.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDate>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>
#include <QSpacerItem>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<Symbol, QMessageBox::Icon>, 5> symbole{{
    {Symbol::Keins, QMessageBox::NoIcon},
    {Symbol::Info, QMessageBox::Information},
    {Symbol::Warnung, QMessageBox::Warning},
    {Symbol::Stop, QMessageBox::Critical},
    {Symbol::Frage, QMessageBox::Question},
}};

constexpr std::array<std::pair<Antwort, QMessageBox::StandardButton>, 4> antworten{{
    {Antwort::OK, QMessageBox::Ok},
    {Antwort::Abbrechen, QMessageBox::Cancel},
    {Antwort::Ja, QMessageBox::Yes},
    {Antwort::Nein, QMessageBox::No},
}};

QMessageBox::StandardButtons knöpfeFür(Knöpfe knöpfe)
{
    switch (knöpfe) {
    case Knöpfe::OKAbbrechen:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Knöpfe::JaNein:
        return QMessageBox::Yes | QMessageBox::No;
    case Knöpfe::OK:
        break;
    }
    return QMessageBox::Ok;
}

/// The first button where none of the box's own is named.
Antwort vorgabeFür(const Meldung& meldung)
{
    return meldung.knöpfe == Knöpfe::JaNein && meldung.vorgabe == Antwort::OK ? Antwort::Ja : meldung.vorgabe;
}

QMessageBox::StandardButton knopfFür(Antwort antwort)
{
    for (const auto& [eine, knopf] : antworten) {
        if (eine == antwort) {
            return knopf;
        }
    }
    return QMessageBox::Ok;
}

/// A word longer than a line could not be broken, and would make the box wider than the screen.
QString mitBruchstellen(const QString& text)
{
    constexpr int längstesWort = 40;
    const QChar bruchstelle(0x200B);
    QString ergebnis;
    int länge = 0;
    for (const auto zeichen : text) {
        länge = zeichen.isSpace() ? 0 : länge + 1;
        if (länge > längstesWort) {
            ergebnis += bruchstelle;
            länge = 1;
        }
        ergebnis += zeichen;
    }
    return ergebnis;
}

/// Long actions are long because of their files, and come by here again and again.
class GeduldigerZugriff : public Zugriffsweiche {
public:
    using Zugriffsweiche::Zugriffsweiche;

    std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad, std::uint64_t ab) override
    {
        geduld::prüfe();
        return Zugriffsweiche::lies(pfad, ab);
    }
    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override
    {
        geduld::prüfe();
        return Zugriffsweiche::öffne(pfad, wie);
    }
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override
    {
        geduld::prüfe();
        Zugriffsweiche::benenneUm(von, nach);
    }
    void sichereOrdnerAufPlatte(const std::filesystem::path& pfad) override
    {
        geduld::prüfe();
        Zugriffsweiche::sichereOrdnerAufPlatte(pfad);
    }
};

} // namespace

std::unique_ptr<QMessageBox> baueMeldungsfenster(const Meldung& meldung)
{
    auto fenster = std::make_unique<QMessageBox>(QApplication::activeWindow());
    // before the program has found its own title its name stands there
    fenster->setWindowTitle(meldung.titel.empty() ? QCoreApplication::applicationName() : alsQString(meldung.titel));
    fenster->setTextFormat(Qt::PlainText);
    fenster->setText(mitBruchstellen(alsMehrzeiler(meldung.text)));
    fenster->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (const auto& [symbol, bild] : symbole) {
        if (symbol == meldung.symbol) {
            fenster->setIcon(bild);
        }
    }
    fenster->setStandardButtons(knöpfeFür(meldung.knöpfe));
    fenster->setDefaultButton(knopfFür(vorgabeFür(meldung)));
    if (meldung.knöpfe != Knöpfe::OK) {
        fenster->setEscapeButton(meldung.knöpfe == Knöpfe::JaNein ? QMessageBox::No : QMessageBox::Cancel);
    }
    if (auto* gitter = dynamic_cast<QGridLayout*>(fenster->layout())) {
        gitter->addItem(new QSpacerItem(em(22), 0), gitter->rowCount(), 0, 1, gitter->columnCount()); // least width
    }
    return fenster;
}

Antwort antwortVon(const QMessageBox& fenster)
{
    const auto gedrückt = fenster.standardButton(fenster.clickedButton());
    for (const auto& [antwort, knopf] : antworten) {
        if (knopf == gedrückt) {
            return antwort;
        }
    }
    // closed without a button
    return fenster.standardButtons().testFlag(QMessageBox::No)       ? Antwort::Nein
           : fenster.standardButtons().testFlag(QMessageBox::Cancel) ? Antwort::Abbrechen
                                                                     : Antwort::OK;
}

std::string alsQtFilter(const std::string& filter)
{
    std::string ergebnis;
    std::size_t von = 0;
    while (von < filter.size()) {
        const auto mitte = filter.find('|', von);
        if (mitte == std::string::npos) {
            break;
        }
        const auto ende = std::min(filter.find('|', mitte + 1), filter.size());
        auto muster = filter.substr(mitte + 1, ende - mitte - 1);
        std::replace(muster.begin(), muster.end(), ';', ' ');
        if (muster == "*.*") {
            muster = "*"; // files without an extension as well
        }
        auto name = filter.substr(von, mitte - von);
        name = name.substr(0, name.find('('));
        ergebnis += (ergebnis.empty() ? "" : ";;") + name + '(' + muster + ')';
        von = ende + 1;
    }
    return ergebnis;
}

QtUmgebung::QtUmgebung(Tabellenprogramm& tabellenprogramm, Laufort laufort)
    : m_tabellenprogramm(tabellenprogramm), m_laufort(std::move(laufort)),
      m_dateien(std::make_unique<GeduldigerZugriff>(erzeugeDateizugriff()))
{}

QtUmgebung::~QtUmgebung() = default;

Datum QtUmgebung::heute()
{
    const auto tag = QDate::currentDate();
    return {tag.year(), tag.month(), tag.day()};
}

bool QtUmgebung::istErsteInstanz(const std::filesystem::path& datenordner)
{
    m_sperre = sperreDatenordner(m_dateien, datenordner);
    return m_sperre != nullptr;
}

Antwort QtUmgebung::zeigeMeldung(const Meldung& meldung)
{
    const geduld::Pause pause;
    const auto fenster = baueMeldungsfenster(meldung);
    fenster->exec();
    return antwortVon(*fenster);
}

std::optional<std::filesystem::path> QtUmgebung::wähleDatei(const Dateiwahl& wahl)
{
    const geduld::Pause pause;
    const auto utf8 = wahl.anfangsordner.u8string(); // a name that is no Unicode must not end the program
    const auto ordner = QString::fromUtf8(reinterpret_cast<const char*>(utf8.data()), std::ssize(utf8));
    const auto pfad =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), {}, ordner, alsQString(alsQtFilter(wahl.filter)));
    if (pfad.isEmpty()) {
        return std::nullopt;
    }
    return std::filesystem::path(pfad.toStdU16String());
}

bool QtUmgebung::findeTabellenprogramm()
{
    return m_tabellenprogramm.istDa();
}

bool QtUmgebung::übergibMappe(Arbeitsmappe& mappe, const std::function<void(double)>& fortschritt)
{
    return m_tabellenprogramm.öffne(mappe, fortschritt);
}

Größe QtUmgebung::bildschirmgröße()
{
    const auto größe = QApplication::primaryScreen()->availableSize();
    return {alsTwips(größe.width()), alsTwips(größe.height())};
}

/// No more often than an eye can follow: drawing costs more than the work that it tells of.
bool QtUmgebung::istBildFällig()
{
    constexpr qint64 bildabstandMs = 50;
    geduld::prüfe();
    return !m_seitDemBild.isValid() || m_seitDemBild.elapsed() >= bildabstandMs;
}

void QtUmgebung::zeichne()
{
    geduld::prüfe();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_seitDemBild.start();
}

void QtUmgebung::zeichneGelegentlich()
{
    if (istBildFällig()) {
        zeichne();
    }
}

void QtUmgebung::lasseEreignisseZu()
{
    if (istBildFällig()) {
        QCoreApplication::processEvents();
        m_seitDemBild.start();
    }
}
