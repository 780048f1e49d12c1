#include "platform/qt/Probe.h"

#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/QtUmgebung.h"
#include "platform/qt/Stil.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QIcon>
#include <QImage>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QToolTip>

namespace {

bool hatFarbe(const QImage& bild, const QColor& farbe)
{
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (bild.pixelColor(x, y) == farbe) {
                return true;
            }
        }
    }
    return false;
}

TEST_F(Fensterprobe, EveryElementHasItsWidgetUnderItsOwnName)
{
    öffne();
    for (const auto* element : bildschirm->elemente()) {
        if (const auto* eintrag = dynamic_cast<const Menüeintrag*>(element)) {
            EXPECT_NE(oberfläche->aktionVon(*eintrag), nullptr) << element->name();
            continue;
        }
        ASSERT_NE(oberfläche->widgetVon(*element), nullptr) << element->name();
        EXPECT_EQ(widget(*element).objectName().toLatin1().toStdString(), element->name());
    }
}

TEST_F(Fensterprobe, FieldsAreNamedByTheirLabels)
{
    öffne();
    EXPECT_EQ(widget(bildschirm->tbName).accessibleName(), QStringLiteral("Name:"));
    EXPECT_EQ(widget(bildschirm->triJaNein(3)).accessibleName(), QStringLiteral("Zeile 3, intern"));
    EXPECT_EQ(widget(bildschirm->comboZahl(3)).accessibleName(), QStringLiteral("Zeile 3, Anzahl"));
    bildschirm->lblFrage.setzeText("Wie lange"_t);
    EXPECT_EQ(widget(bildschirm->comboArt).accessibleName(), QStringLiteral("Wie lange"));
    const auto* vorgelesen = QAccessible::queryAccessibleInterface(&widget(bildschirm->triJaNein(3)));
    ASSERT_NE(vorgelesen, nullptr);
    EXPECT_EQ(vorgelesen->role(), QAccessible::ComboBox);
    EXPECT_EQ(vorgelesen->text(QAccessible::Value), QStringLiteral("k.A. (offen)"));
    const auto fragen = vorgelesen->relations(QAccessible::Label);
    ASSERT_EQ(fragen.size(), 2);
    EXPECT_EQ(fragen[0].first->text(QAccessible::Name), QStringLiteral("Zeile 3"));
    EXPECT_EQ(fragen[1].first->text(QAccessible::Name), QStringLiteral("intern"));
}

TEST_F(Fensterprobe, FocusIsSeenAsALineRoundTheFieldAndATintOfItsRow)
{
    öffne();
    bildschirm->triJaNein(2).setzeText("ja"_t);
    bildschirm->setzeFokus(&bildschirm->tbName);
    oberfläche->rahmenfenster()->activateWindow();
    auto& feld = widget(bildschirm->triJaNein(2));
    auto& zeile = *feld.parentWidget();
    EXPECT_FALSE(hatFarbe(zeile.grab().toImage(), farben().wahl));
    bildschirm->setzeFokus(&bildschirm->triJaNein(2));
    lasseGeschehen();
    EXPECT_TRUE(hatFarbe(feld.grab().toImage(), farben().fokus));
    EXPECT_TRUE(hatFarbe(zeile.grab().toImage(), farben().wahl));
    bildschirm->setzeFokus(&bildschirm->comboArt);
    lasseGeschehen();
    EXPECT_FALSE(hatFarbe(zeile.grab().toImage(), farben().wahl));
    EXPECT_TRUE(hatFarbe(widget(bildschirm->comboArt).grab().toImage(), farben().fokus));
}

TEST_F(Fensterprobe, FocusedFieldIsScrolledIntoView)
{
    öffne();
    rahmen.setzeGröße(1366 * 15, 400 * 15);
    lasseGeschehen();
    oberfläche->ordne();
    bildschirm->setzeFokus(&bildschirm->triJaNein(14));
    auto& feld = widget(bildschirm->triJaNein(14));
    EXPECT_FALSE(feld.visibleRegion().isEmpty());
    EXPECT_EQ(feld.visibleRegion().boundingRect().height(), feld.height());
}

TEST_F(Fensterprobe, DisabledElementsArePaleAndTakeNothing)
{
    öffne();
    auto& feld = bildschirm->triJaNein(1);
    const QImage frei = widget(feld).grab().toImage();
    feld.sperre();
    lasseGeschehen();
    const QImage gesperrt = widget(feld).grab().toImage();
    EXPECT_TRUE(hatFarbe(frei, QColor(255, 0, 0)));
    EXPECT_FALSE(hatFarbe(gesperrt, QColor(255, 0, 0)));
    klicke(feld);
    EXPECT_EQ(feld.text(), "k.A.");
}

TEST_F(Fensterprobe, ADisabledScreenIsPaleAsAWholeAndTakesNothing)
{
    öffne();
    int klicks = 0;
    bildschirm->cmdOK.beiKlick = [&] { ++klicks; };
    ablauf.ereignis([this] { folge.sperre(*bildschirm); });
    EXPECT_FALSE(widget(bildschirm->cmdOK).isEnabled());
    EXPECT_FALSE(oberfläche->rahmenfenster()->menuBar()->isEnabled());
    klicke(bildschirm->cmdOK);
    drücke(*oberfläche->rahmenfenster(), Qt::Key_Escape);
    EXPECT_EQ(klicks, 0);
    ablauf.ereignis([this] { folge.gibFrei(*bildschirm); });
    klicke(bildschirm->cmdOK);
    EXPECT_EQ(klicks, 1);
}

TEST_F(Fensterprobe, CoverDisablesWhatLiesUnderItAndLeavesItsStateAlone)
{
    öffne();
    bildschirm->cmdDecke.zeige();
    EXPECT_FALSE(widget(bildschirm->optWas(1)).isEnabled());
    EXPECT_TRUE(widget(bildschirm->cmdDecke).isVisible());
    EXPECT_TRUE(widget(bildschirm->cmdDecke).geometry().contains(widget(bildschirm->optWas(2)).geometry()));
    bildschirm->cmdDecke.verberge();
    EXPECT_TRUE(widget(bildschirm->optWas(1)).isEnabled());
}

TEST_F(Fensterprobe, HiddenFocusGoesOnToTheNextFieldInReadingOrder)
{
    öffne();
    bildschirm->setzeFokus(&bildschirm->comboArt);
    ablauf.ereignis([] {});
    bildschirm->cmdOK.beiKlick = [this] { bildschirm->cmdOK.sperre(); };
    klicke(bildschirm->cmdOK);
    EXPECT_TRUE(bildschirm->cmdExit.hatFokus());
    EXPECT_EQ(&tastatur(), &widget(bildschirm->cmdExit));
}

TEST_F(Fensterprobe, MenuEntriesReachTheirElements)
{
    öffne();
    int klicks = 0;
    bildschirm->mnEnde.beiKlick = [&] { ++klicks; };
    oberfläche->aktionVon(bildschirm->mnEnde)->trigger();
    EXPECT_EQ(klicks, 1);
    EXPECT_TRUE(oberfläche->rahmenfenster()->menuBar()->isVisible());
    bildschirm->mnEnde.sperre();
    EXPECT_FALSE(oberfläche->aktionVon(bildschirm->mnEnde)->isEnabled());
}

TEST_F(Fensterprobe, WidgetsOutlastAScreenThatUnloadsItself)
{
    öffne();
    bildschirm->cmdExit.beiKlick = [this] {
        folge.entlade(*bildschirm);
        bildschirm = std::make_unique<Probebildschirm>(); // the next opening drops the object
    };
    const QPointer<QWidget> alte = &widget(bildschirm->cmdExit);
    klicke(*alte, alte->rect().center());
    EXPECT_EQ(folge.geladene().size(), 0U);
    if (!alte.isNull()) {
        EXPECT_FALSE(alte->isVisible());
        klicke(*alte, alte->rect().center()); // late events find nobody
    }
    lasseGeschehen();
    EXPECT_TRUE(alte.isNull());
    öffne();
    EXPECT_TRUE(widget(bildschirm->cmdExit).isVisible());
}

TEST_F(Fensterprobe, ChildWindowClosesByItsEscapeButtonAndTellsItsPlace)
{
    bildschirm->istKindfenster = true;
    bildschirm->links = 3000;
    bildschirm->oben = 1500;
    öffne();
    auto* fenster = oberfläche->fensterVon(*bildschirm);
    EXPECT_TRUE(fenster->isWindow());
    int klicks = 0;
    bildschirm->cmdExit.beiKlick = [&] { ++klicks; };
    EXPECT_FALSE(fenster->close());
    EXPECT_EQ(klicks, 1);
    fenster->move(20, 30);
    EXPECT_EQ(bildschirm->links, 300);
    EXPECT_EQ(bildschirm->oben, 450);
}

TEST_F(Fensterprobe, FrameTellsThePersonsPlacingOnly)
{
    rahmen.setzeLage(100.5, 7);
    öffne();
    EXPECT_EQ(rahmen.oben(), 100.5); // the place that was asked for, not the pixels that were made of it
    EXPECT_EQ(rahmen.links(), 7);
    oberfläche->rahmenfenster()->move(40, 60);
    EXPECT_EQ(rahmen.links(), 600);
    EXPECT_EQ(rahmen.oben(), 900);
    rahmen.setzeLage(-50000, 0);
    EXPECT_GE(oberfläche->rahmenfenster()->pos().y(), 0); // shown where it can be reached
    EXPECT_EQ(rahmen.oben(), -50000);
}

TEST_F(Fensterprobe, FrameAsksBeforeItCloses)
{
    öffne();
    int fragen = 0;
    rahmen.beiSchließwunsch = [&] {
        ++fragen;
        return false;
    };
    EXPECT_FALSE(oberfläche->rahmenfenster()->close());
    EXPECT_EQ(fragen, 1);
    EXPECT_TRUE(oberfläche->rahmenfenster()->isVisible());
}

TEST(Meldungsfenster, HasTheButtonsTheDefaultAndTheGermanTextsOfItsMessage)
{
    stelleAnwendungBereit();
    const auto fenster =
        baueMeldungsfenster({"Erste\r\nZweite", Symbol::Warnung, Knöpfe::JaNein, Antwort::Nein, "Tolvek7"});
    EXPECT_EQ(fenster->text(), QStringLiteral("Erste\nZweite"));
    EXPECT_EQ(fenster->icon(), QMessageBox::Warning);
    EXPECT_EQ(fenster->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(fenster->standardButton(fenster->defaultButton()), QMessageBox::No);
    EXPECT_EQ(fenster->escapeButton(), fenster->button(QMessageBox::No));
    EXPECT_EQ(fenster->button(QMessageBox::Yes)->text().remove('&'), QStringLiteral("Ja"));
    EXPECT_EQ(antwortVon(*fenster), Antwort::Nein);

    const auto zwei = baueMeldungsfenster({"?", Symbol::Keins, Knöpfe::OKAbbrechen, Antwort::OK, {}});
    EXPECT_EQ(zwei->button(QMessageBox::Cancel)->text().remove('&'), QStringLiteral("Abbrechen"));
    EXPECT_EQ(zwei->standardButton(zwei->defaultButton()), QMessageBox::Ok);
}

TEST(Meldungsfenster, BearsTheProgramsNameWhileNoTitleIsKnown)
{
    stelleAnwendungBereit();
    EXPECT_EQ(baueMeldungsfenster({"?", Symbol::Info, Knöpfe::OK, Antwort::OK, {}})->windowTitle(),
              QStringLiteral("Tolvek7"));
    EXPECT_EQ(baueMeldungsfenster({"?", Symbol::Info, Knöpfe::OK, Antwort::OK, "Titel"})->windowTitle(),
              QStringLiteral("Titel"));
}

TEST(Meldungsfenster, FitsTheScreenWhateverNameItTells)
{
    stelleAnwendungBereit();
    const auto fenster = baueMeldungsfenster(
        {"Soll " + std::string(255, 'W') + " verworfen werden?", Symbol::Frage, Knöpfe::JaNein, Antwort::Nein, {}});
    fenster->show();
    EXPECT_LE(fenster->width(), em(60));
    EXPECT_EQ(fenster->text().remove(QChar(0x200B)).count(QChar('W')), 255);
}

TEST(Programm, HasASignInEverySizeAndANameForTheDesktop)
{
    stelleAnwendungBereit();
    EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("tolvek7"));
    EXPECT_EQ(QGuiApplication::applicationDisplayName(), QStringLiteral("Tolvek7"));
    const auto größen = QApplication::windowIcon().availableSizes();
    for (const int seite : {16, 24, 32, 48, 64, 128, 256}) {
        EXPECT_TRUE(größen.contains(QSize(seite, seite))) << seite;
        EXPECT_EQ(QApplication::windowIcon().pixmap(seite, seite).size(), QSize(seite, seite));
    }
}

TEST_F(Fensterprobe, ALabelThatIsCutTellsTheWholeInItsToolTip)
{
    bildschirm->lblName.setzeText(std::string(255, 'W'));
    öffne();
    auto& name = widgetAls<Etikett>(bildschirm->lblName);
    EXPECT_TRUE(name.gezeigterText().endsWith(QChar(0x2026)));
    EXPECT_LE(oberfläche->rahmenfenster()->minimumSizeHint().width(), em(60));
    QHelpEvent ereignis(QEvent::ToolTip, name.rect().center(), name.mapToGlobal(name.rect().center()));
    QApplication::sendEvent(&name, &ereignis);
    EXPECT_EQ(QToolTip::text(), QString(255, QChar('W')));
    QToolTip::hideText();
    bildschirm->lblName.setzeText("Adler, Anna"_t);
    lasseGeschehen();
    EXPECT_EQ(name.gezeigterText(), QStringLiteral("Adler, Anna"));
}

TEST(Dateiwahlfilter, BecomesTheToolkitsForm)
{
    EXPECT_EQ(alsQtFilter("Textdateien (*.txt)|*.txt|Alle|*.*;*"), "Textdateien (*.txt);;Alle(*.* *)");
    EXPECT_EQ(alsQtFilter("Text-Dateien (*.txt)|*.txt|alle Dateien (*.*)|*.*"),
              "Text-Dateien (*.txt);;alle Dateien (*)");
    EXPECT_EQ(alsQtFilter(""), "");
}

} // namespace
