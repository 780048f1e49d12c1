#include "platform/qt/Handbuch.h"

#include "platform/qt/Handbuchstellen.h"
#include "platform/qt/Probe.h"
#include "platform/qt/Umschrift.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include <set>

namespace {

const QString quellen = QStringLiteral(TOLVEK_QUELLEN);
const QString ordner = quellen + QStringLiteral("/docs/handbuch");

QString inhaltVon(const QString& pfad)
{
    QFile datei(pfad);
    EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << pfad.toStdString();
    return QString::fromUtf8(datei.readAll());
}

QString handbuch()
{
    return inhaltVon(ordner + QStringLiteral("/handbuch.md"));
}

/// Every match of the first group.
QStringList treffer(const QString& text, const char* muster)
{
    QStringList ergebnis;
    auto suche = QRegularExpression(QString::fromUtf8(muster)).globalMatch(text);
    while (suche.hasNext()) {
        ergebnis.append(suche.next().captured(1));
    }
    return ergebnis;
}

/// The marks of all headings, as the window finds them.
QStringList marken()
{
    stelleAnwendungBereit();
    Handbuch buch([] { return std::string(); }, ordner);
    buch.öffneBei({});
    const auto& dokument = *buch.findChild<QTextBrowser*>()->document();
    QStringList ergebnis;
    for (auto block = dokument.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            ergebnis.append(markeVon(block.text()));
        }
    }
    return ergebnis;
}

/// The sources of the logic and of the windows.
QStringList quelltexte()
{
    QStringList texte;
    for (const char* teil :
         {"app", "clients", "care", "diagnosis", "export", "import", "spreadsheet", "satz", "store", "zustand"}) {
        const QDir src(quellen + QStringLiteral("/src/") + QString::fromLatin1(teil));
        for (const auto& name : src.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files)) {
            texte.append(inhaltVon(src.filePath(name)));
        }
    }
    return texte;
}

TEST(Handbuchtext, NoHeadingIsThereTwice)
{
    const auto alle = marken();
    EXPECT_EQ(std::set<QString>(alle.begin(), alle.end()).size(), static_cast<std::size_t>(alle.size()));
}

TEST(Handbuchtext, EveryScreenHasItsPlace)
{
    std::set<QString> genannte;
    const auto alle = marken();
    for (const auto& stelle : handbuchstellen) {
        genannte.insert(alsQString(stelle.bildschirm));
        EXPECT_TRUE(alle.contains(alsQString(stelle.marke))) << stelle.marke;
    }
    std::set<QString> schirme;
    for (const auto& text : quelltexte()) {
        for (const auto& name : treffer(text, "(?:Bildschirm|Betreuungsseite)\\(\"(frm[^\"]+)\"")) {
            schirme.insert(name);
        }
    }
    EXPECT_EQ(genannte, schirme);
}

TEST(Handbuchtext, EveryLinkAndEveryPictureExists)
{
    const auto text = handbuch();
    const auto alle = marken();
    for (const auto& ziel : treffer(text, "\\]\\(#([^)]+)\\)")) {
        EXPECT_TRUE(alle.contains(ziel)) << ziel.toStdString();
    }
    std::set<QString> gezeigte;
    for (const auto& bild : treffer(text, "!\\[[^]]*\\]\\(([^)]+)\\)")) {
        EXPECT_FALSE(QImage(ordner + QLatin1Char('/') + bild).isNull()) << bild.toStdString();
        gezeigte.insert(bild);
    }
    qint64 größe = 0;
    for (const auto& datei : QDir(ordner + QStringLiteral("/bilder")).entryInfoList(QDir::Files)) {
        EXPECT_TRUE(gezeigte.contains(QStringLiteral("bilder/") + datei.fileName())) << datei.fileName().toStdString();
        größe += datei.size();
    }
    EXPECT_LT(größe, 3'000'000);
    EXPECT_GE(gezeigte.size(), 16U);
}

/// Whether the words are captions, one behind the other: "Datei > Daten > Excel" of a menu and its entry.
bool istWegAusBeschriftungen(const QString& worte, const QString& quellen)
{
    if (quellen.contains(QLatin1Char('"') + worte + QLatin1Char('"'))) {
        return true;
    }
    const auto trennung = worte.indexOf(QStringLiteral(" > "));
    return trennung > 0 && istWegAusBeschriftungen(worte.left(trennung), quellen) &&
           istWegAusBeschriftungen(worte.mid(trennung + 3), quellen);
}

/// What the handbook puts in italics are buttons and menus by the words that stand on them.
TEST(Handbuchtext, EveryButtonIsCalledAsItIs)
{
    auto quellen = quelltexte().join(QString()).remove(QLatin1Char('&'));
    quellen.remove(
        QRegularExpression(QStringLiteral("(?<=[a-z])- (?=[a-z])"))); // "Betreuungs- ende" of a narrow button
    const auto genannte = treffer(handbuch(), "(?<![*\\w])\\*([^*`]+)\\*(?![*\\w])");
    for (const auto& worte : genannte) {
        EXPECT_TRUE(istWegAusBeschriftungen(worte.simplified(), quellen))
            << "docs/handbuch/handbuch.md: no button or menu is called \"" << worte.toStdString() << "\"";
    }
    EXPECT_GE(genannte.size(), 40);
}

TEST(Handbuchtext, EveryMenuEntryIsExplained)
{
    const auto teil = handbuch().section(QStringLiteral("### Hauptmenü\n"), 1).section(QStringLiteral("\n### "), 0, 0);
    const auto einträge = treffer(inhaltVon(quellen + QStringLiteral("/src/clients/frmHauptmenue.h")),
                                  "Menüeintrag \\w+\\{\\*this, \"[^\"]+\"_t, \"([^\"]+)\"_t\\}");
    EXPECT_GE(einträge.size(), 8);
    for (const auto& eintrag : einträge) {
        EXPECT_TRUE(teil.contains(eintrag)) << "docs/handbuch/handbuch.md says nothing of the menu's \""
                                            << eintrag.toStdString() << "\" under \"Hauptmenü\"";
    }
}

/// What stands in the parentheses that open at `anfang`.
QString klammerinhalt(const QString& text, qsizetype anfang)
{
    bool inText = false;
    int tiefe = 0;
    for (auto ort = anfang; ort < text.size(); ++ort) {
        const auto zeichen = text[ort];
        if (zeichen == QLatin1Char('\\')) {
            ++ort;
        } else if (zeichen == QLatin1Char('"')) {
            inText = !inText;
        } else if (!inText && zeichen == QLatin1Char('(')) {
            ++tiefe;
        } else if (!inText && zeichen == QLatin1Char(')') && --tiefe == 0) {
            return text.mid(anfang + 1, ort - anfang - 1);
        }
    }
    return {};
}

/// The sources as far as boxes are made in them: what a call that shows one is given, what it is given in a variable,
/// and the functions that are called meldungZu…
QStringList meldungsstellen(const QStringList& quellen)
{
    static const QRegularExpression aufruf(
        QStringLiteral("(?<![\\w.])(zeigeMeldung|[\\w.()]*meldung\\(\\)|m_meldung|melde|frage =\\s*verbinde)(?=\\()"));
    static const QRegularExpression funktion(QStringLiteral("\\n[^\\n ]* meldung\\w+\\([^)]*\\)\\n\\{(.*?)\\n\\}"),
                                             QRegularExpression::DotMatchesEverythingOption);
    QStringList stellen;
    for (const auto& quelle : quellen) {
        for (auto suche = aufruf.globalMatch(quelle); suche.hasNext();) {
            stellen.append(klammerinhalt(quelle, suche.next().capturedEnd()));
        }
        for (auto suche = funktion.globalMatch(quelle); suche.hasNext();) {
            stellen.append(suche.next().captured(1));
        }
    }
    return stellen;
}

/// Each box that the program shows is explained: every part of its text that does not change stands in the handbook.
TEST(Handbuchtext, EveryMessageIsExplained)
{
    constexpr int zuKurzZumSuchen = 6; // blanks, quotes, a name of a field
    const auto text = handbuch().simplified().remove(QLatin1Char('\\'));
    std::set<QString> teile;
    for (const auto& stelle : meldungsstellen(quelltexte())) {
        for (auto stück : treffer(stelle, "\"((?:[^\"\\\\]|\\\\.)*)\"")) {
            stück.replace(QStringLiteral("\\\""), QStringLiteral("\""));
            for (const auto& teil : stück.split(QRegularExpression(QStringLiteral("\\\\[rn]")))) {
                teile.insert(teil.simplified().remove(QRegularExpression(QStringLiteral("^['\" ]+|['\" ]+$"))));
            }
        }
    }
    for (const auto& teil : teile) {
        EXPECT_TRUE(teil.size() < zuKurzZumSuchen || text.contains(teil))
            << "docs/handbuch/handbuch.md, \"Was eine Meldung bedeutet\": explain the message with \""
            << teil.toStdString() << "\"";
    }
    EXPECT_GE(teile.size(), 60U);
}

/// The test above reads the text of a box where it is made; this one sees to it that it is made where that test reads.
TEST(Handbuchtext, EveryMessageIsWrittenWhereItIsLookedFor)
{
    static const QRegularExpression bekannte(
        QStringLiteral("^(\"|verbinde\\(|frage,|meldung\\w+\\(|std::string_view text|text, symbol|fehler\\.text,)"));
    for (const auto& quelle : quelltexte()) {
        static const QRegularExpression aufruf(QStringLiteral("\\bzeigeMeldung(?=\\()"));
        for (auto suche = aufruf.globalMatch(quelle); suche.hasNext();) {
            const auto inhalt = klammerinhalt(quelle, suche.next().capturedEnd()).simplified();
            EXPECT_TRUE(bekannte.match(inhalt).hasMatch() || inhalt.startsWith(QLatin1Char('{')))
                << "zeigeMeldung(" << inhalt.toStdString()
                << "): give it the text, verbinde(…), a variable named frage or a function named meldungZu…";
        }
    }
}

class Handbuchfenster : public Fensterprobe {
protected:
    static QWidget* fenster()
    {
        for (auto* eines : QApplication::topLevelWidgets()) {
            if (eines->isVisible() && eines->windowTitle().endsWith(QStringLiteral("Handbuch"))) {
                return eines;
            }
        }
        return nullptr;
    }

    static QString überschriftOben(Handbuch& buch)
    {
        return buch.findChild<QTextBrowser*>()->textCursor().block().text();
    }
};

TEST_F(Handbuchfenster, F1OpensItAndTheScreenTakesInputAllTheSame)
{
    öffne();
    drücke(tastatur(), Qt::Key_F1);
    lasseGeschehen();
    auto* buch = fenster();
    ASSERT_NE(buch, nullptr);
    EXPECT_TRUE(bildschirm->tbName.istFrei());
    EXPECT_TRUE(oberfläche->rahmenfenster()->isEnabled());
    EXPECT_TRUE(widget(bildschirm->tbName).isEnabled());
    tippe(widget(bildschirm->tbName), QStringLiteral("ab"));
    EXPECT_EQ(bildschirm->tbName.text(), "ab");
    buch->close();
    lasseGeschehen();
    EXPECT_EQ(fenster(), nullptr);
}

TEST_F(Handbuchfenster, ItOpensAtTheScreenInUse)
{
    öffne();
    std::string name(handbuchstellen[6].bildschirm);
    Handbuch buch([&] { return name; }, ordner);
    drücke(*oberfläche->rahmenfenster(), Qt::Key_F1);
    ASSERT_TRUE(buch.isVisible());
    EXPECT_EQ(markeVon(überschriftOben(buch)), alsQString(handbuchstellen[6].marke));
    auto* blatt = buch.findChild<QTextBrowser*>();
    EXPECT_GT(blatt->verticalScrollBar()->value(), 0);
    name = handbuchstellen[0].bildschirm;
    drücke(*oberfläche->rahmenfenster(), Qt::Key_F1);
    EXPECT_EQ(markeVon(überschriftOben(buch)), alsQString(handbuchstellen[0].marke));
}

TEST_F(Handbuchfenster, AMissingHandbookIsTold)
{
    öffne();
    Handbuch buch([] { return std::string(); }, QStringLiteral("/gibt/es/nicht"));
    buch.öffneBei({});
    EXPECT_TRUE(buch.findChild<QTextBrowser*>()->toPlainText().contains(QStringLiteral("fehlt")));
}

} // namespace
