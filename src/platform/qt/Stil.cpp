#include "platform/qt/Stil.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

struct Farbeintrag {
    const char* name; ///< in the style sheet
    QColor Farbtafel::*ort;
    QRgb hell;
    QRgb dunkel;
};

constexpr std::array<Farbeintrag, 19> farbeinträge{{
    {"grund", &Farbtafel::grund, 0xFFEEF2F5, 0xFF12181D},
    {"flaeche", &Farbtafel::flaeche, 0xFFFFFFFF, 0xFF1B232A},
    {"feld", &Farbtafel::feld, 0xFFFFFFFF, 0xFF12181D},
    {"zebra", &Farbtafel::zebra, 0xFFF5F8FA, 0xFF212B33},
    {"linie", &Farbtafel::linie, 0xFFDDE4EA, 0xFF2B363F},
    {"rand", &Farbtafel::rand, 0xFFC5D0D9, 0xFF3A4853},
    {"feldrand", &Farbtafel::feldrand, 0xFF71808D, 0xFF7C8B98},
    {"schrift", &Farbtafel::schrift, 0xFF17232D, 0xFFE4EBF0},
    {"schrift2", &Farbtafel::schrift2, 0xFF465664, 0xFFAEBBC6},
    {"gesperrt", &Farbtafel::gesperrt, 0xFF5E6B77, 0xFF8898A5},
    {"akzent", &Farbtafel::akzent, 0xFF0A647F, 0xFF5CB6D2},
    {"akzentH", &Farbtafel::akzentH, 0xFF084C61, 0xFF86CCE1},
    {"aufakzent", &Farbtafel::aufakzent, 0xFFFFFFFF, 0xFF06222B},
    {"wahl", &Farbtafel::wahl, 0xFFD0E7EF, 0xFF1F4857},
    {"band", &Farbtafel::band, 0xFF0F4657, 0xFF0E2E39},
    {"aufband", &Farbtafel::aufband, 0xFFFFFFFF, 0xFFEAF3F6},
    {"band2", &Farbtafel::band2, 0xFFC9E0E8, 0xFFA9C6D1},
    {"fokus", &Farbtafel::fokus, 0xFF6363CC, 0xFFA6A6FF},
    {"fehler", &Farbtafel::fehler, 0xFFA3241B, 0xFFFF9A90},
}};

struct Stilstand {
    Farbtafel farben;
    QFont grundschrift;
    double zeilenhöhe = 18;
};

Stilstand& stilstand()
{
    static Stilstand einer;
    return einer;
}

double leuchtdichte(const QColor& farbe)
{
    const auto anteil = [](double wert) {
        return wert <= 0.04045 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) + 0.0722 * anteil(farbe.blueF());
}

Farbtafel tafel(Thema thema)
{
    Farbtafel ergebnis;
    for (const auto& eintrag : farbeinträge) {
        ergebnis.*eintrag.ort = QColor::fromRgba(thema == Thema::Hell ? eintrag.hell : eintrag.dunkel);
    }
    return ergebnis;
}

QString fülle(QString vorlage, Thema thema)
{
    vorlage.replace(QStringLiteral("@thema"), QLatin1String(thema == Thema::Hell ? "hell" : "dunkel"));
    for (const auto& eintrag : farbeinträge) {
        const QRegularExpression platzhalter(QStringLiteral("@%1\\b").arg(QLatin1String(eintrag.name)));
        vorlage.replace(platzhalter, (stilstand().farben.*eintrag.ort).name());
    }
    return vorlage;
}

QPalette palette(const Farbtafel& f)
{
    QPalette p;
    const std::array<std::pair<QPalette::ColorRole, QColor>, 17> rollen{{
        {QPalette::Window, f.grund},
        {QPalette::WindowText, f.schrift},
        {QPalette::Base, f.feld},
        {QPalette::AlternateBase, f.zebra},
        {QPalette::Text, f.schrift},
        {QPalette::Button, f.flaeche},
        {QPalette::ButtonText, f.schrift},
        {QPalette::Highlight, f.akzent},
        {QPalette::HighlightedText, f.aufakzent},
        {QPalette::Link, f.akzent},
        {QPalette::PlaceholderText, f.gesperrt},
        {QPalette::Mid, f.rand},
        {QPalette::Dark, f.feldrand},
        {QPalette::Light, f.flaeche},
        {QPalette::Midlight, f.linie},
        {QPalette::ToolTipBase, f.flaeche},
        {QPalette::ToolTipText, f.schrift},
    }};
    for (const auto& [rolle, farbe] : rollen) {
        p.setColor(rolle, farbe);
    }
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(QPalette::Disabled, rolle, f.gesperrt);
    }
    p.setColor(QPalette::Disabled, QPalette::Base, f.zebra);
    return p;
}

/// The texts of the toolkit's own buttons and menus, from the system, from beside the program or from inside it.
void ladeÜbersetzung(QApplication& anwendung)
{
    auto* übersetzer = new QTranslator(&anwendung);
    const auto datei = QStringLiteral("qtbase_de");
    if (übersetzer->load(datei, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        übersetzer->load(datei, QApplication::applicationDirPath()) ||
        übersetzer->load(datei, QApplication::applicationDirPath() + QStringLiteral("/translations")) ||
        übersetzer->load(datei, QStringLiteral(":/uebersetzung"))) {
        QApplication::installTranslator(übersetzer);
    }
}

} // namespace

/// The resources of a static library have to be asked for, outside any namespace.
static void ladeBilder()
{
    Q_INIT_RESOURCE(stil);
#ifdef Q_OS_WIN
    Q_INIT_RESOURCE(uebersetzung);
#endif
}

void richteStilEin(QApplication& anwendung)
{
    const bool istDunkel = QApplication::palette().color(QPalette::Window).lightness() < 128;
    richteStilEin(anwendung, istDunkel ? Thema::Dunkel : Thema::Hell);
}

/// Under which name and sign the desktop shows the program and its boxes.
static void nenneProgramm()
{
    QCoreApplication::setApplicationName(QStringLiteral("Tolvek7"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tolvek7"));
    QGuiApplication::setWindowIcon(programmzeichen());
}

/// A system that lacks the face it names itself would give any other, one with serifs too.
static void nenneErsatzschriften()
{
    QFont::insertSubstitutions(QApplication::font().family(),
                               {QStringLiteral("Segoe UI"), QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"),
                                QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
}

void richteStilEin(QApplication& anwendung, Thema thema)
{
    ladeBilder();
    nenneProgramm();
    nenneErsatzschriften();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ladeÜbersetzung(anwendung);
    auto& s = stilstand();
    s.farben = tafel(thema);
    s.grundschrift = QApplication::font();
    s.zeilenhöhe = QFontMetrics(s.grundschrift).height();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette(s.farben));
    QFile vorlage(QStringLiteral(":/stil/stil.qss"));
    if (vorlage.open(QIODevice::ReadOnly)) {
        anwendung.setStyleSheet(fülle(QString::fromUtf8(vorlage.readAll()), thema));
    }
}

QIcon programmzeichen()
{
    QIcon zeichen;
    for (const int seite : {16, 24, 32, 48, 64, 128, 256}) {
        zeichen.addFile(QStringLiteral(":/stil/zeichen/tolvek7-%1.png").arg(seite), {seite, seite});
    }
    return zeichen;
}

const Farbtafel& farben()
{
    return stilstand().farben;
}

double kontrast(const QColor& eine, const QColor& andere)
{
    const double a = leuchtdichte(eine);
    const double b = leuchtdichte(andere);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

int em(double länge)
{
    return static_cast<int>(std::lround(länge * stilstand().zeilenhöhe));
}

QFont schrift(Schriftrolle rolle)
{
    struct Werte {
        Schriftrolle rolle;
        double größe;
        QFont::Weight gewicht;
    };
    static constexpr std::array<Werte, 6> tabelle{{
        {Schriftrolle::Grund, 1.0, QFont::Normal},
        {Schriftrolle::Bandtitel, 1.35, QFont::DemiBold},
        {Schriftrolle::Bandname, 1.15, QFont::Normal},
        {Schriftrolle::Kartentitel, 1.0, QFont::DemiBold},
        {Schriftrolle::Spaltenkopf, 0.9, QFont::DemiBold},
        {Schriftrolle::Wert, 1.0, QFont::DemiBold},
    }};
    const auto& werte = *std::ranges::find(tabelle, rolle, &Werte::rolle);
    QFont ergebnis = stilstand().grundschrift;
    if (ergebnis.pointSizeF() > 0) {
        ergebnis.setPointSizeF(ergebnis.pointSizeF() * werte.größe);
    } else {
        ergebnis.setPixelSize(static_cast<int>(std::lround(ergebnis.pixelSize() * werte.größe)));
    }
    ergebnis.setWeight(werte.gewicht);
    return ergebnis;
}
