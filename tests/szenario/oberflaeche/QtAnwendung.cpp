#include "oberflaeche/QtAnwendung.h"

#include "platform/qt/Stil.h"

#include <QDir>
#include <QFile>
#include <QFont>

#include <cstdio>

namespace {

constexpr auto schirmbeschreibung = R"({
    "synchronousWindowSystemEvents": true,
    "windowFrameMargins": false,
    "screens": [{"name": "S", "x": 0, "y": 0, "width": %1, "height": %2,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]
})";

constexpr double gewöhnlicheSchrift = 10; // points

/// What platform and session lack concerns no scenario.
void meldeWeiter(QtMsgType /*art*/, const QMessageLogContext& /*ort*/, const QString& text)
{
    if (!text.contains(QStringLiteral("plugin does not support")) &&
        !text.contains(QStringLiteral("XDG_RUNTIME_DIR"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

QtAnwendung::QtAnwendung(const Schirm& schirm)
{
    // named without its folder: what stands in front of a Windows path's colon would be taken for the whole of it
    const QString vorher = QDir::currentPath();
    QDir::setCurrent(m_ordner.path());
    QFile datei(QStringLiteral("bildschirm.json"));
    if (datei.open(QIODevice::WriteOnly)) {
        datei.write(QString::fromLatin1(schirmbeschreibung).arg(schirm.breite).arg(schirm.höhe).toLatin1());
        datei.close();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=bildschirm.json");
    if (qEnvironmentVariableIsSet("TOLVEK_SCHRIFTEN")) {
        qputenv("QT_QPA_FONTDIR", qgetenv("TOLVEK_SCHRIFTEN"));
    }
    if (schirm.schärfe != 1) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(schirm.schärfe));
    }
    qInstallMessageHandler(meldeWeiter);
    m_anwendung = std::make_unique<QApplication>(m_argc, m_argv);
    QDir::setCurrent(vorher);
    if (schirm.schrift > 0) {
        QFont schrift(QString::fromStdString(schirm.schriftart));
        schrift.setPointSizeF(gewöhnlicheSchrift * schirm.schrift);
        QApplication::setFont(schrift);
    }
    richteStilEin(*m_anwendung, schirm.istDunkel ? Thema::Dunkel : Thema::Hell);
    for (const auto effekt : {Qt::UI_AnimateCombo, Qt::UI_AnimateMenu, Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip}) {
        QApplication::setEffectEnabled(effekt, false);
    }
}
