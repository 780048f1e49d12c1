#include "platform/qt/Probe.h"

#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Datumsbox.h"
#include "platform/qt/Feldhinweis.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTextDocument>
#include <QTreeView>

namespace {

TEST_F(Fensterprobe, WheelChangesNoAnswerFocusedOrNot)
{
    öffne();
    for (auto* element :
         std::initializer_list<Element*>{&bildschirm->comboArt, &bildschirm->comboZahl(1), &bildschirm->DTPicker}) {
        const auto vorher = element->text();
        bildschirm->setzeFokus(&bildschirm->tbName);
        dreheRad(widget(*element));
        EXPECT_EQ(element->text(), vorher) << element->name();
        bildschirm->setzeFokus(element);
        dreheRad(widget(*element));
        EXPECT_EQ(element->text(), vorher) << element->name();
    }
}

TEST_F(Fensterprobe, PageKeysLeaveAChoiceAlone)
{
    öffne();
    for (auto* feld : {&bildschirm->comboArt, &bildschirm->comboZahl(1)}) {
        bildschirm->setzeFokus(feld);
        const auto vorher = feld->text();
        drücke(tastatur(), Qt::Key_PageDown);
        drücke(tastatur(), Qt::Key_PageUp);
        EXPECT_EQ(feld->text(), vorher);
    }
}

TEST_F(Fensterprobe, CombinationsThatMeanNothingDoNothing)
{
    öffne();
    auto& liste = bildschirm->lvw;
    liste.setzeZeilen({"1\xB7"
                       "Zander",
                       "2\xB7"
                       "Adler"});
    liste.wähle(1);
    bildschirm->setzeFokus(&liste);
    auto& ansicht = widgetAls<QTreeView>(liste);
    for (const auto zusatz : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        for (const auto taste : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_A}) {
            drücke(ansicht, taste, {}, zusatz);
            EXPECT_EQ(ansicht.currentIndex().row(), 0) << taste;
            EXPECT_EQ(liste.auswahl(), 1U) << taste;
        }
    }
    auto& zahl = bildschirm->comboZahl(1);
    bildschirm->setzeFokus(&zahl);
    drücke(tastatur(), Qt::Key_Delete, {}, Qt::ControlModifier);
    drücke(tastatur(), Qt::Key_1, QStringLiteral("1"), Qt::AltModifier);
    drücke(tastatur(), Qt::Key_Down, {}, Qt::ControlModifier);
    EXPECT_EQ(zahl.text(), "k.A.");
    EXPECT_EQ(widgetAls<Auswahlbox>(zahl).gezeigterText(), QStringLiteral("k.A."));
    bildschirm->setzeFokus(&bildschirm->tbName);
    drücke(tastatur(), Qt::Key_5, QStringLiteral("5"), Qt::AltModifier);
    EXPECT_EQ(bildschirm->tbName.text(), "");
}

TEST_F(Fensterprobe, NumberComboAndDateAreSelectedAsAWholeWithTheCursorBefore)
{
    öffne();
    bildschirm->setzeFokus(&bildschirm->comboZahl(1));
    auto& zahl = *widgetAls<Auswahlbox>(bildschirm->comboZahl(1)).lineEdit();
    EXPECT_EQ(zahl.selectedText(), QStringLiteral("k.A."));
    EXPECT_EQ(zahl.cursorPosition(), 0);
    tippe(tastatur(), QStringLiteral("1"));
    EXPECT_EQ(bildschirm->comboZahl(1).text(), "1");
    bildschirm->setzeFokus(&bildschirm->DTPicker);
    auto& datum = widgetAls<Datumsbox>(bildschirm->DTPicker);
    EXPECT_EQ(datum.selectedText(), QStringLiteral("02.08.2007"));
    EXPECT_EQ(datum.cursorPosition(), 0);
    klicke(datum, {datum.width() / 4, datum.height() / 2});
    EXPECT_FALSE(datum.hasSelectedText()) << "a press sets the cursor";
}

TEST_F(Fensterprobe, CharactersOutsideTheCodePageBecomeTheirNearestLetterOrAreRefused)
{
    öffne();
    klicke(bildschirm->tbName);
    auto& zeile = widgetAls<QLineEdit>(bildschirm->tbName);
    tippe(zeile, QStringLiteral("Kovačić"));
    EXPECT_EQ(bildschirm->tbName.text(), "Kovacic");
    EXPECT_EQ(zeile.text(), QStringLiteral("Kovacic"));
    EXPECT_NE(zeile.window()->findChild<QLabel*>(QLatin1String(feldhinweis)), nullptr);

    tippe(zeile, QStringLiteral("ś漢ü"));
    EXPECT_EQ(bildschirm->tbName.text(), "Kovacics\xFC");
    EXPECT_EQ(zeile.text(), QStringLiteral("Kovacicsü"));
}

TEST_F(Fensterprobe, CursorStaysBehindAReplacedCharacter)
{
    öffne();
    bildschirm->tbName.setzeText("ab"_t);
    klicke(bildschirm->tbName);
    auto& zeile = widgetAls<QLineEdit>(bildschirm->tbName);
    zeile.setCursorPosition(1);
    tippe(zeile, QStringLiteral("ćx"));
    EXPECT_EQ(bildschirm->tbName.text(), "acxb");
}

TEST_F(Fensterprobe, PastedLinesBecomeBlanksInOneLineAndLineBreaksInSeveral)
{
    öffne();
    auto& zeile = widgetAls<QLineEdit>(bildschirm->tbName);
    zeile.insert(QStringLiteral("a\nb\tc"));
    emit zeile.textEdited(zeile.text()); // as pasting tells it
    EXPECT_EQ(bildschirm->tbName.text(), "a b c");

    widgetAls<QPlainTextEdit>(bildschirm->tbMemo).insertPlainText(QStringLiteral("eins\nzwei"));
    EXPECT_EQ(bildschirm->tbMemo.text(), "eins\r\nzwei");
}

TEST_F(Fensterprobe, LineBreaksOfTheElementAreShownAndNotDoubled)
{
    öffne();
    bildschirm->tbMemo.setzeText("eins\r\nzwei"_t);
    auto& block = widgetAls<QPlainTextEdit>(bildschirm->tbMemo);
    EXPECT_EQ(block.toPlainText(), QStringLiteral("eins\nzwei"));
    block.moveCursor(QTextCursor::End);
    klicke(*block.viewport(), {2, 2});
    block.moveCursor(QTextCursor::End);
    drücke(block, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(bildschirm->tbMemo.text(), "eins\r\nzwei\r\n");
}

TEST_F(Fensterprobe, AFieldThatDoesNotLetGoKeepsTheFocusAndStopsTheClick)
{
    öffne();
    int klicks = 0;
    bildschirm->cmdOK.beiKlick = [&] { ++klicks; };
    bildschirm->tbName.beiVerlassen = [] { return false; };
    bildschirm->setzeFokus(&bildschirm->tbName);

    klicke(bildschirm->cmdOK);
    EXPECT_EQ(klicks, 0);
    drücke(tastatur(), Qt::Key_Tab, QStringLiteral("\t"));
    EXPECT_TRUE(bildschirm->tbName.hatFokus());
    EXPECT_EQ(&tastatur(), &widget(bildschirm->tbName));
    QShortcutEvent kürzel(QKeySequence(Qt::ALT | Qt::Key_O), 1);
    QCoreApplication::sendEvent(&widget(bildschirm->cmdOK), &kürzel);
    EXPECT_EQ(klicks, 0);

    bildschirm->tbName.beiVerlassen = [] { return true; };
    klicke(bildschirm->cmdOK);
    EXPECT_EQ(klicks, 1);
    EXPECT_EQ(&tastatur(), &widget(bildschirm->cmdOK));
    bildschirm->setzeFokus(&bildschirm->tbName);
    QCoreApplication::sendEvent(&widget(bildschirm->cmdOK), &kürzel);
    EXPECT_EQ(klicks, 2);
}

TEST_F(Fensterprobe, TabGoesThroughTheScreenInReadingOrder)
{
    öffne();
    std::vector<std::string> gegangen;
    std::vector<std::string> erwartet;
    for (const auto* element : bildschirm->tabFolge()) {
        if (bildschirm->istErreichbar(*element)) {
            erwartet.push_back(element->name());
            gegangen.push_back(tastatur().objectName().toStdString());
            drücke(tastatur(), Qt::Key_Tab, QStringLiteral("\t"));
        }
    }
    for (auto& name : erwartet) {
        name = QString::fromLatin1(name.data()).toStdString();
    }
    EXPECT_EQ(gegangen, erwartet);
    EXPECT_EQ(tastatur().objectName(), QStringLiteral("tbName")); // and around again
}

TEST_F(Fensterprobe, AnswerFieldGoesRoundByClickAndArrows)
{
    öffne();
    auto& feld = widgetAls<Antwortfeld>(bildschirm->triJaNein(2));
    klicke(bildschirm->triJaNein(2));
    EXPECT_EQ(bildschirm->triJaNein(2).text(), "ja");
    EXPECT_EQ(feld.text(), QStringLiteral("ja"));
    EXPECT_EQ(feld.hintergrund(), QColor(Qt::white));
    drücke(feld, Qt::Key_Left);
    EXPECT_EQ(feld.text(), QStringLiteral("k.A."));
    drücke(feld, Qt::Key_Down);
    EXPECT_TRUE(bildschirm->triJaNein(3).hatFokus());
    EXPECT_EQ(bildschirm->triJaNein(3).text(), "k.A.");
    drücke(tastatur(), Qt::Key_Up);
    EXPECT_EQ(&tastatur(), &feld);
}

TEST_F(Fensterprobe, ArrowsMoveTheFocusOverOptionsThatAnswerAndSpaceMarks)
{
    öffne();
    klicke(bildschirm->optWas(1));
    EXPECT_TRUE(bildschirm->optWas(1).istAn());
    drücke(tastatur(), Qt::Key_Down);
    EXPECT_TRUE(bildschirm->optWas(2).hatFokus());
    EXPECT_FALSE(bildschirm->optWas(2).istAn());
    drücke(tastatur(), Qt::Key_Space, QStringLiteral(" "));
    EXPECT_TRUE(bildschirm->optWas(2).istAn());
    EXPECT_FALSE(bildschirm->optWas(1).istAn());
    EXPECT_TRUE(widgetAls<QAbstractButton>(bildschirm->optWas(2)).isChecked());
    EXPECT_FALSE(widgetAls<QAbstractButton>(bildschirm->optWas(1)).isChecked());
}

TEST_F(Fensterprobe, KeysOfANumberComboGoThroughItsRule)
{
    öffne();
    std::vector<int> codes;
    auto& feld = bildschirm->comboZahl(1);
    feld.beiTastendruck = [&](int& code) {
        codes.push_back(code);
        feld.setzeText("10"_t);
        feld.setzeSchreibmarke(1);
        code = 0;
    };
    klicke(feld);
    tippe(tastatur(), QStringLiteral("1"));
    drücke(tastatur(), Qt::Key_Backspace, QStringLiteral("\b"));
    drücke(tastatur(), Qt::Key_Delete, QStringLiteral("\x7F"));
    EXPECT_EQ(codes, (std::vector{49, 8}));
    auto& box = widgetAls<Auswahlbox>(feld);
    EXPECT_EQ(box.gezeigterText(), QStringLiteral("10"));
    EXPECT_EQ(box.lineEdit()->cursorPosition(), 1);
    EXPECT_EQ(box.currentIndex(), 3);
    drücke(tastatur(), Qt::Key_Up);
    EXPECT_EQ(feld.text(), "2");
}

TEST_F(Fensterprobe, AWrongNumberIsMarkedWhileItsMessageStands)
{
    öffne();
    auto& feld = bildschirm->comboZahl(1);
    auto& box = widgetAls<Auswahlbox>(feld);
    feld.setzeHintergrund(farbe::rot);
    EXPECT_TRUE(box.property("falsch").toBool());
    feld.setzeHintergrund(farbe::weiß);
    EXPECT_FALSE(box.property("falsch").toBool());
    bildschirm->setzeFokus(&feld);
    EXPECT_EQ(box.lineEdit()->selectedText(), QStringLiteral("k.A."));
}

TEST_F(Fensterprobe, ComboShowsATextThatIsNotInItsList)
{
    öffne();
    bildschirm->comboArt.setzeText("aus alter Zeit"_t);
    auto& box = widgetAls<Auswahlbox>(bildschirm->comboArt);
    EXPECT_EQ(box.gezeigterText(), QStringLiteral("aus alter Zeit"));
    EXPECT_EQ(box.currentIndex(), -1);
    klicke(bildschirm->lvw);
    bildschirm->setzeFokus(&bildschirm->comboArt);
    tippe(tastatur(), QStringLiteral("z"));
    EXPECT_EQ(bildschirm->comboArt.text(), "zweite Art");
    EXPECT_EQ(box.gezeigterText(), QStringLiteral("zweite Art"));
}

/// The toolkit would close the list, whatever is held down with its key.
TEST_F(Fensterprobe, AnOpenListClosesByTheProgramsKeysAlone)
{
    öffne();
    auto& box = widgetAls<Auswahlbox>(bildschirm->comboArt);
    bildschirm->setzeFokus(&bildschirm->comboArt);
    drücke(box, Qt::Key_F4, {}, Qt::ShiftModifier);
    EXPECT_FALSE(box.view()->isVisible());
    drücke(box, Qt::Key_F4);
    ASSERT_TRUE(box.view()->isVisible());
    drücke(*box.view(), Qt::Key_F4, {}, Qt::ShiftModifier);
    EXPECT_TRUE(box.view()->isVisible());
    drücke(*box.view(), Qt::Key_F4);
    EXPECT_FALSE(box.view()->isVisible());
}

struct Datumseingabe {
    const char* getippt;
    const char* erwartet;
};

class DatumGetippt : public Fensterprobe, public ::testing::WithParamInterface<Datumseingabe> {};

TEST_P(DatumGetippt, IsReadWhenTheFieldIsLeft)
{
    öffne();
    bildschirm->setzeFokus(&bildschirm->DTPicker);
    tippe(tastatur(), QString::fromLatin1(GetParam().getippt));
    klicke(bildschirm->cmdOK);
    EXPECT_EQ(bildschirm->DTPicker.text(), GetParam().erwartet);
    EXPECT_EQ(widgetAls<Datumsbox>(bildschirm->DTPicker).text().toStdString(), GetParam().erwartet);
    EXPECT_TRUE(bildschirm->cmdOK.hatFokus());
}

INSTANTIATE_TEST_SUITE_P(
    Schreibweisen, DatumGetippt,
    ::testing::Values(Datumseingabe{"2.8.1974", "02.08.1974"}, Datumseingabe{"02.08.1974", "02.08.1974"},
                      Datumseingabe{"31.12.2006", "31.12.2006"}, Datumseingabe{"02081974", "02.08.1974"},
                      Datumseingabe{"8.3.74", "08.03.1974"}, Datumseingabe{"29.2.2004", "29.02.2004"},
                      Datumseingabe{"31.12.", "31.12.2007"}, Datumseingabe{"311225", "31.12.2025"}));

TEST_F(Fensterprobe, ADateThatIsNoneKeepsTextAndFocusAndSaysSo)
{
    öffne();
    int klicks = 0;
    bildschirm->cmdOK.beiKlick = [&] { ++klicks; };
    bildschirm->setzeFokus(&bildschirm->DTPicker);
    auto& feld = widgetAls<Datumsbox>(bildschirm->DTPicker);
    tippe(feld, QStringLiteral("29.2.2005"));
    klicke(bildschirm->cmdOK);
    EXPECT_EQ(klicks, 0);
    EXPECT_EQ(feld.text(), QStringLiteral("29.2.2005"));
    EXPECT_EQ(&tastatur(), &feld);
    auto* hinweis = feld.window()->findChild<QLabel*>(QLatin1String(feldhinweis));
    ASSERT_NE(hinweis, nullptr);
    EXPECT_TRUE(hinweis->text().contains(QStringLiteral("29.2.2005"))) << hinweis->text().toStdString();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(hinweis)->role(), QAccessible::Notification);
    drücke(feld, Qt::Key_Escape);
    EXPECT_EQ(feld.text(), QStringLiteral("02.08.2007"));
    EXPECT_EQ(bildschirm->DTPicker.text(), "02.08.2007");
}

TEST_F(Fensterprobe, ArrowsChangeThePartOfTheDateWhereTheCursorIs)
{
    öffne();
    klicke(bildschirm->DTPicker);
    auto& feld = widgetAls<Datumsbox>(bildschirm->DTPicker);
    feld.setCursorPosition(4);
    drücke(feld, Qt::Key_Up);
    EXPECT_EQ(bildschirm->DTPicker.text(), "02.09.2007");
    feld.setCursorPosition(8);
    drücke(feld, Qt::Key_Down);
    EXPECT_EQ(bildschirm->DTPicker.text(), "02.09.2006");
    feld.setCursorPosition(1);
    drücke(feld, Qt::Key_Down);
    EXPECT_EQ(bildschirm->DTPicker.text(), "01.09.2006");
}

TEST_F(Fensterprobe, AKeyOpensTheCalendarAndItsKeysPick)
{
    öffne();
    bildschirm->setzeFokus(&bildschirm->DTPicker);
    auto& feld = widgetAls<Datumsbox>(bildschirm->DTPicker);
    drücke(feld, Qt::Key_Down, {}, Qt::AltModifier);
    ASSERT_NE(feld.kalender(), nullptr);
    auto* tage = feld.kalender()->findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview"));
    ASSERT_NE(tage, nullptr);
    drücke(*tage, Qt::Key_Down);
    EXPECT_EQ(feld.kalender()->selectedDate(), QDate(2007, 8, 9));
    EXPECT_EQ(bildschirm->DTPicker.text(), "02.08.2007");
    drücke(*tage, Qt::Key_Return);
    EXPECT_EQ(bildschirm->DTPicker.text(), "09.08.2007");
    EXPECT_EQ(feld.kalender(), nullptr);
}

TEST_F(Fensterprobe, AMemoKeepsWhatNobodyTouched)
{
    öffne();
    const auto alt = std::string("a\xA0"
                                 "b\tc\x81\r\nd");
    bildschirm->tbMemo.setzeText(alt);
    auto& block = widgetAls<QPlainTextEdit>(bildschirm->tbMemo);
    klicke(bildschirm->tbMemo);
    block.moveCursor(QTextCursor::End);
    tippe(block, QStringLiteral("e"));
    EXPECT_EQ(bildschirm->tbMemo.text(), alt + "e");
    tippe(block, QStringLiteral("漢"));
    EXPECT_EQ(bildschirm->tbMemo.text(), alt + "e");
    EXPECT_EQ(block.document()->characterAt(1), QChar(QChar::Nbsp));
    block.selectAll();
    drücke(block, Qt::Key_Delete, QStringLiteral("\x7F"));
    EXPECT_EQ(bildschirm->tbMemo.text(), "");
    block.undo();
    EXPECT_EQ(bildschirm->tbMemo.text(), alt + "e");
}

TEST_F(Fensterprobe, ALongerStoredTextIsNotCutByItsWidget)
{
    öffne();
    bildschirm->tbName.setzeText("0123456789012345678901234"); // the field takes 20
    klicke(bildschirm->tbName);
    auto& zeile = widgetAls<QLineEdit>(bildschirm->tbName);
    zeile.end(false);
    drücke(zeile, Qt::Key_Backspace, QStringLiteral("\b"));
    EXPECT_EQ(bildschirm->tbName.text(), "012345678901234567890123");
    tippe(zeile, QStringLiteral("x"));
    EXPECT_EQ(bildschirm->tbName.text(), "012345678901234567890123");
    EXPECT_EQ(zeile.text(), QStringLiteral("012345678901234567890123"));
    EXPECT_NE(zeile.window()->findChild<QLabel*>(QLatin1String(feldhinweis)), nullptr);
}

TEST_F(Fensterprobe, ListTakesClicksKeysAndHeaderClicksToItsElement)
{
    öffne();
    std::vector<std::string> geschehen;
    auto& liste = bildschirm->lvw;
    liste.setzeZeilen({"1\xB7"
                       "Zander",
                       "2\xB7"
                       "Adler"});
    liste.beiKlick = [&] { geschehen.push_back("klick " + std::to_string(liste.auswahl())); };
    liste.beiDoppelklick = [&] { geschehen.push_back("doppelklick " + std::to_string(liste.auswahl())); };
    liste.beiKopfklick = [&](std::size_t spalte) { liste.sortiereNach(spalte); };
    auto& ansicht = widgetAls<QTreeView>(liste);
    const auto mitte = ansicht.visualRect(ansicht.model()->index(1, 0)).center();
    klicke(*ansicht.viewport(), mitte);
    klicke(*ansicht.viewport(), mitte, true);
    EXPECT_EQ(geschehen, (std::vector<std::string>{"klick 2", "doppelklick 2"}));
    drücke(ansicht, Qt::Key_Up);
    EXPECT_EQ(liste.auswahl(), 1U);
    EXPECT_EQ(ansicht.currentIndex().row(), 0);

    emit ansicht.header()->sectionClicked(1);
    EXPECT_EQ(ansicht.model()->index(0, 1).data().toString(), QStringLiteral("Adler"));
    EXPECT_EQ(ansicht.header()->sortIndicatorSection(), 1);
    EXPECT_EQ(ansicht.currentIndex().row(), 1); // the selection stays with its row
    liste.setzeZeilen({"3\xB7"
                       "Bach"});
    EXPECT_FALSE(ansicht.header()->isSortIndicatorShown());
    EXPECT_FALSE(ansicht.selectionModel()->hasSelection());
}

} // namespace
