#include "platform/qt/Probe.h"

#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Eingabefilter.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTreeView>

namespace {

TEST_F(Fensterprobe, WheelChangesOnlyWhatHasTheFocus)
{
    öffne();
    bildschirm->setzeFokus(&bildschirm->tbName);
    for (auto* element :
         std::initializer_list<Element*>{&bildschirm->comboArt, &bildschirm->comboZahl(1), &bildschirm->DTPicker}) {
        const auto vorher = element->text();
        dreheRad(widget(*element));
        EXPECT_EQ(element->text(), vorher) << element->name();
    }
    bildschirm->setzeFokus(&bildschirm->comboArt);
    dreheRad(widget(bildschirm->comboArt));
    EXPECT_EQ(bildschirm->comboArt.text(), "zweite Art");
}

TEST_F(Fensterprobe, CharactersOutsideTheCodePageBecomeTheirNearestLetterOrAreRefused)
{
    öffne();
    klicke(bildschirm->tbName);
    auto& zeile = widgetAls<QLineEdit>(bildschirm->tbName);
    tippe(zeile, QStringLiteral("Kovačić"));
    EXPECT_EQ(bildschirm->tbName.text(), "Kovacic");
    EXPECT_EQ(zeile.text(), QStringLiteral("Kovacic"));
    EXPECT_NE(zeile.window()->findChild<QLabel*>(filterhinweis), nullptr);

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
    EXPECT_EQ(widgetAls<QDateEdit>(bildschirm->DTPicker).text().toStdString(), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    Schreibweisen, DatumGetippt,
    ::testing::Values(Datumseingabe{"2.8.1974", "02.08.1974"}, Datumseingabe{"02.08.1974", "02.08.1974"},
                      Datumseingabe{"31.12.2006", "31.12.2006"}, Datumseingabe{"02081974", "02.08.1974"},
                      Datumseingabe{"8.3.74", "08.03.1974"}, Datumseingabe{"29.2.2004", "29.02.2004"},
                      Datumseingabe{"29.2.2005", "02.08.2007"}, Datumseingabe{"31.12.", "02.08.2007"}));

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
