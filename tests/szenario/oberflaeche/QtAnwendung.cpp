#include "oberflaeche/QtAnwendung.h"

#include "platform/qt/Stil.h"

#include <QFile>

#include <cstdio>

namespace {

constexpr auto bildschirm = R"({
    "synchronousWindowSystemEvents": true,
    "windowFrameMargins": false,
    "screens": [{"name": "S", "x": 0, "y": 0, "width": 3840, "height": 2160,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]
})";

/// What platform and session lack concerns no scenario.
void meldeWeiter(QtMsgType /*art*/, const QMessageLogContext& /*ort*/, const QString& text)
{
    if (!text.contains(QStringLiteral("plugin does not support")) &&
        !text.contains(QStringLiteral("XDG_RUNTIME_DIR"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

QtAnwendung::QtAnwendung()
{
    const QString pfad = m_ordner.filePath(QStringLiteral("bildschirm.json"));
    QFile datei(pfad);
    if (datei.open(QIODevice::WriteOnly)) {
        datei.write(bildschirm);
        datei.close();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(pfad));
    qInstallMessageHandler(meldeWeiter);
    m_anwendung = std::make_unique<QApplication>(m_argc, m_argv);
    richteStilEin(*m_anwendung, Thema::Hell);
    for (const auto effekt : {Qt::UI_AnimateCombo, Qt::UI_AnimateMenu, Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip}) {
        QApplication::setEffectEnabled(effekt, false);
    }
}
