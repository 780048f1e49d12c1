#include "oberflaeche/QtHand.h"

#include "platform/qt/Datumsbox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

/// The window that gets the events: a popup goes before all others.
QWindow& fensterFür(QWidget& widget)
{
    auto* oben = QApplication::activePopupWidget();
    auto* fenster = (oben == nullptr ? widget.window() : oben)->windowHandle();
    if (fenster == nullptr) {
        throw std::runtime_error("das Fenster ist nicht offen");
    }
    return *fenster;
}

/// The parent, however far up, beyond whose edge the place lies; nullptr for none.
QWidget* abschneidendes(const QWidget& widget, QPoint ort)
{
    for (auto* um = widget.parentWidget(); um != nullptr; um = um->parentWidget()) {
        if (!um->rect().contains(widget.mapTo(um, ort))) {
            return um;
        }
        if (um->isWindow()) {
            break;
        }
    }
    return nullptr;
}

void drehe(QWidget& widget, bool abwärts)
{
    constexpr int raste = 120;
    const QPoint mitte = widget.rect().center();
    QWheelEvent ereignis(mitte, widget.mapToGlobal(mitte), {}, {0, abwärts ? -raste : raste}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&ereignis); // else it stays with this widget
    qApp->notify(&widget, &ereignis);
}

QPoint imFenster(const QWidget& widget, QPoint ort)
{
    return widget.mapTo(widget.window(), ort);
}

/// The place in the window, where the widget must be the one that a press meets.
QPoint ziel(const QWidget& widget, QPoint ort)
{
    const QPoint stelle = imFenster(widget, ort);
    const auto* getroffen = widget.window()->childAt(stelle);
    if (getroffen != &widget && !widget.isAncestorOf(getroffen)) {
        throw std::runtime_error("an der Stelle von " + widget.objectName().toStdString() + " liegt " +
                                 (getroffen == nullptr ? "nichts" : getroffen->objectName().toStdString()));
    }
    return stelle;
}

constexpr std::array<std::pair<Taste::Art, Qt::Key>, 13> sondertasten{{
    {Taste::Art::Rück, Qt::Key_Backspace},
    {Taste::Art::Entf, Qt::Key_Delete},
    {Taste::Art::Links, Qt::Key_Left},
    {Taste::Art::Rechts, Qt::Key_Right},
    {Taste::Art::Auf, Qt::Key_Up},
    {Taste::Art::Ab, Qt::Key_Down},
    {Taste::Art::Pos1, Qt::Key_Home},
    {Taste::Art::Ende, Qt::Key_End},
    {Taste::Art::Tab, Qt::Key_Tab},
    {Taste::Art::Eingabe, Qt::Key_Return},
    {Taste::Art::Esc, Qt::Key_Escape},
    {Taste::Art::F1, Qt::Key_F1},
    {Taste::Art::F4, Qt::Key_F4},
}};

QString alsQString(std::u32string_view text)
{
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

/// The key that bears the character on some keyboard.
Qt::Key tasteFür(char32_t zeichen)
{
    const QChar groß = QChar(static_cast<char16_t>(zeichen)).toUpper();
    const bool istLatin1 = zeichen < 0x100 && groß.unicode() < 0x100;
    return istLatin1 ? static_cast<Qt::Key>(groß.unicode()) : Qt::Key_unknown;
}

void sendeTaste(QWidget& fenster, Qt::Key taste, const QString& text, Qt::KeyboardModifiers zusatz)
{
    QTest::sendKeyEvent(QTest::Click, &fensterFür(fenster), taste, text, zusatz);
}

/// The text that the key brings along.
QString textDer(Qt::Key taste)
{
    switch (taste) {
    case Qt::Key_Return:
        return QStringLiteral("\r");
    case Qt::Key_Tab:
        return QStringLiteral("\t");
    case Qt::Key_Backspace:
        return QStringLiteral("\b");
    default:
        return {};
    }
}

Qt::KeyboardModifiers zusatzVon(const Tastendruck& druck)
{
    Qt::KeyboardModifiers zusatz;
    zusatz.setFlag(Qt::ShiftModifier, druck.umschalt);
    zusatz.setFlag(Qt::ControlModifier, druck.strg);
    zusatz.setFlag(Qt::AltModifier, druck.alt);
    return zusatz;
}

/// With Ctrl a letter brings its control character along, with Alt itself.
QString textDes(const Tastendruck& druck)
{
    const auto text = alsQString({&druck.zeichen, 1});
    if (!druck.strg) {
        return druck.umschalt ? text.toUpper() : text;
    }
    const bool istBuchstabe = druck.zeichen < 0x80 && text.front().isLetter();
    return istBuchstabe ? QString(QChar(text.front().toUpper().unicode() - u'@')) : QString();
}

QPoint aufklappknopf(const QComboBox& box)
{
    if (!box.isEditable()) {
        return box.rect().center();
    }
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = true;
    option.subControls = QStyle::SC_All;
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &box).center();
}

/// A popup takes no release of the mouse for the time of a double click after it has opened; a person is
/// slower than that, a scenario is not.
class Geduld {
public:
    Geduld() : m_vorher(QApplication::doubleClickInterval()) { QApplication::setDoubleClickInterval(0); }
    Geduld(const Geduld&) = delete;
    Geduld& operator=(const Geduld&) = delete;
    ~Geduld() { QApplication::setDoubleClickInterval(m_vorher); }

private:
    int m_vorher;
};

} // namespace

namespace qthand {

QPoint griff(const QWidget& widget)
{
    const bool istZeichen =
        qobject_cast<const QRadioButton*>(&widget) != nullptr || qobject_cast<const QCheckBox*>(&widget) != nullptr;
    const QPoint mitte = widget.rect().center();
    return istZeichen ? QPoint(std::min(mitte.x(), mitte.y()), mitte.y()) : mitte;
}

void rolleMitRad(QWidget& widget, QPoint ort)
{
    constexpr int rasten = 100;
    for (int i = 0; i < rasten; ++i) {
        auto* um = abschneidendes(widget, ort);
        if (um == nullptr) {
            return;
        }
        const QPoint vorher = imFenster(widget, ort);
        drehe(*um, widget.mapTo(um, ort).y() > um->rect().center().y());
        if (imFenster(widget, ort) == vorher) {
            return;
        }
    }
}

void dreheRad(QWidget& widget, int schritte)
{
    for (int i = 0; i < std::abs(schritte); ++i) {
        drehe(widget, schritte > 0);
    }
}

void klicke(QWidget& widget, QPoint ort)
{
    QTest::mouseClick(&fensterFür(widget), Qt::LeftButton, Qt::NoModifier, ziel(widget, ort));
}

void doppelklicke(QWidget& widget, QPoint ort)
{
    QTest::mouseDClick(&fensterFür(widget), Qt::LeftButton, Qt::NoModifier, ziel(widget, ort));
}

void drücke(QWidget& fenster, Qt::Key taste, Qt::KeyboardModifiers zusatz)
{
    sendeTaste(fenster, taste, zusatz == Qt::NoModifier ? textDer(taste) : QString(), zusatz);
}

void drücke(QWidget& fenster, const Tastendruck& druck)
{
    const auto zusatz = zusatzVon(druck);
    if (druck.art == Taste::Art::Zeichen) {
        sendeTaste(fenster, tasteFür(druck.zeichen), textDes(druck), zusatz);
        return;
    }
    if (druck.art == Taste::Art::Tab && druck.umschalt) {
        drücke(fenster, Qt::Key_Backtab, zusatz);
        return;
    }
    const auto ort =
        std::find_if(sondertasten.begin(), sondertasten.end(), [&](const auto& t) { return t.first == druck.art; });
    drücke(fenster, ort->second, zusatz);
}

void tippe(QWidget& fenster, std::u32string_view text)
{
    constexpr std::size_t vonHand = 300; // longer texts come as from an input method, all at once
    const auto hand = text.substr(0, vonHand);
    for (const char32_t zeichen : hand) {
        drücke(fenster, zeichen == U'\n' ? Tastendruck{.art = Taste::Art::Eingabe} : Tastendruck{.zeichen = zeichen});
    }
    if (auto* feld = fenster.window()->focusWidget(); feld != nullptr && hand.size() < text.size()) {
        QInputMethodEvent eingabe;
        eingabe.setCommitString(alsQString(text.substr(vonHand)));
        QApplication::sendEvent(feld, &eingabe);
    }
}

void fügeEin(QWidget& fenster, std::u32string_view text)
{
    drücke(fenster, Qt::Key_A, Qt::ControlModifier);
    if (text.empty()) {
        drücke(fenster, Qt::Key_X, Qt::ControlModifier);
        return;
    }
    QApplication::clipboard()->setText(alsQString(text));
    drücke(fenster, Qt::Key_V, Qt::ControlModifier);
}

void wähle(QComboBox& box, int eintrag)
{
    const Geduld geduld;
    klicke(box, aufklappknopf(box));
    auto& liste = *box.view();
    if (!liste.isVisible()) {
        return; // the press was refused
    }
    const auto ort = box.model()->index(eintrag, box.modelColumn());
    liste.scrollTo(ort);
    klicke(*liste.viewport(), liste.visualRect(ort).center());
}

void wähle(Datumsbox& feld, const QDate& datum)
{
    const Geduld geduld;
    auto& knopf = *feld.findChild<QToolButton*>();
    klicke(knopf, knopf.rect().center());
    auto* kalender = feld.kalender();
    if (kalender == nullptr || !kalender->isVisible()) {
        return; // the press was refused
    }
    kalender->setCurrentPage(datum.year(), datum.month());
    auto* tage = kalender->findChild<QTableView*>();
    const auto& modell = *tage->model();
    // six weeks stand there; the first day of this number that is not of the month before is the one
    bool imMonat = false;
    for (int i = 0; i < modell.rowCount() * modell.columnCount(); ++i) {
        const auto ort = modell.index(i / modell.columnCount(), i % modell.columnCount());
        const QString tag = modell.data(ort).toString();
        const bool istTag = modell.flags(ort).testFlag(Qt::ItemIsEnabled);
        imMonat = imMonat || (istTag && tag == QStringLiteral("1"));
        if (imMonat && istTag && tag == QString::number(datum.day())) {
            klicke(*tage->viewport(), tage->visualRect(ort).center());
            return;
        }
    }
}

QPoint zeilenort(QTreeView& liste, int zeile)
{
    const auto ort = liste.model()->index(zeile, 0);
    liste.scrollTo(ort);
    return liste.visualRect(ort).center();
}

QPoint kopfort(QTreeView& liste, int spalte)
{
    auto& kopf = *liste.header();
    return {kopf.sectionViewportPosition(spalte) + kopf.sectionSize(spalte) / 2, kopf.height() / 2};
}

} // namespace qthand
