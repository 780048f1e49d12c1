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
#include <QRegularExpression>
#include <QScreen>
#include <QSpacerItem>

#include <algorithm>
#include <array>
#include <utility>

namespace {

struct Symbolbild {
    Symbol symbol;
    QMessageBox::Icon bild;
};
constexpr std::array<Symbolbild, 5> symbole{{
    {Symbol::Keins, QMessageBox::NoIcon},
    {Symbol::Info, QMessageBox::Information},
    {Symbol::Warnung, QMessageBox::Warning},
    {Symbol::Stop, QMessageBox::Critical},
    {Symbol::Frage, QMessageBox::Question},
}};

struct Antwortknopf {
    Antwort antwort;
    QMessageBox::StandardButton knopf;
};
constexpr std::array<Antwortknopf, 4> antworten{{
    {Antwort::OK, QMessageBox::Ok},
    {Antwort::Abbrechen, QMessageBox::Cancel},
    {Antwort::Ja, QMessageBox::Yes},
    {Antwort::Nein, QMessageBox::No},
}};

/// The first is the default where none of the box's own is named, the last is what Escape presses.
struct Knopfsatz {
    Knöpfe knöpfe;
    QMessageBox::StandardButton erster;
    QMessageBox::StandardButton letzter;
};
constexpr std::array<Knopfsatz, 3> knopfsätze{{
    {Knöpfe::OK, QMessageBox::Ok, QMessageBox::Ok},
    {Knöpfe::OKAbbrechen, QMessageBox::Ok, QMessageBox::Cancel},
    {Knöpfe::JaNein, QMessageBox::Yes, QMessageBox::No},
}};

/// A word longer than a line could not be broken, and would make the box wider than the screen.
QString mitBruchstellen(const QString& text)
{
    static const QRegularExpression zeilenlang(QStringLiteral("(\\S{40})(?=\\S)"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).replace(zeilenlang, QStringLiteral("\\1\u200B"));
}

} // namespace

std::unique_ptr<QMessageBox> baueMeldungsfenster(const Meldung& meldung)
{
    auto fenster = std::make_unique<QMessageBox>(QApplication::activeWindow());
    // before the program has found its own title its name stands there
    fenster->setWindowTitle(meldung.titel.empty() ? QCoreApplication::applicationName() : alsQString(meldung.titel));
    fenster->setTextFormat(Qt::PlainText);
    fenster->setText(mitBruchstellen(alsMehrzeiler(meldung.text)));
    fenster->setTextInteractionFlags(Qt::TextSelectableByMouse);
    fenster->setIcon(std::ranges::find(symbole, meldung.symbol, &Symbolbild::symbol)->bild);
    const auto& knöpfe = *std::ranges::find(knopfsätze, meldung.knöpfe, &Knopfsatz::knöpfe);
    fenster->setStandardButtons(knöpfe.erster | knöpfe.letzter);
    fenster->setEscapeButton(knöpfe.letzter);
    fenster->setDefaultButton(knöpfe.erster);
    fenster->setDefaultButton(std::ranges::find(antworten, meldung.vorgabe, &Antwortknopf::antwort)->knopf);
    if (auto* gitter = dynamic_cast<QGridLayout*>(fenster->layout())) {
        gitter->addItem(new QSpacerItem(em(22), 0), gitter->rowCount(), 0, 1, gitter->columnCount()); // least width
    }
    return fenster;
}

Antwort antwortVon(const QMessageBox& fenster)
{
    auto* gedrückt = fenster.clickedButton();
    const auto knopf = fenster.standardButton(gedrückt == nullptr ? fenster.escapeButton() : gedrückt);
    return std::ranges::find(antworten, knopf, &Antwortknopf::knopf)->antwort;
}

QString alsQtFilter(const std::string& filter)
{
    const auto teile = alsQString(filter).split(QChar('|'));
    QStringList ergebnis;
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        auto muster = QString(teile[i + 1]).replace(QChar(';'), QChar(' '));
        if (muster == QStringLiteral("*.*")) {
            muster = QStringLiteral("*"); // files without an extension as well
        }
        ergebnis.append(QStringLiteral("%1(%2)").arg(teile[i].section(QChar('('), 0, 0), muster));
    }
    return ergebnis.join(QStringLiteral(";;"));
}

QtUmgebung::QtUmgebung(Tabellenprogramm& tabellenprogramm, Laufort laufort)
    : m_tabellenprogramm(tabellenprogramm), m_laufort(std::move(laufort)),
      // long actions are long because of their files, and come by here again and again
      m_dateien(std::make_unique<Dateizugriff>(), geduld::prüfe)
{}

Datum QtUmgebung::heute()
{
    const auto tag = QDate::currentDate();
    return {tag.year(), tag.month(), tag.day()};
}

bool QtUmgebung::istErsteInstanz(const std::filesystem::path& datenordner)
{
    m_sperre = sperreDatenordner(m_dateien, datenordner);
    return m_sperre.istOffen();
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
    const auto pfad = QFileDialog::getOpenFileName(QApplication::activeWindow(), {}, ordner, alsQtFilter(wahl.filter));
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
