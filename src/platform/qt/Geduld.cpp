#include "platform/qt/Geduld.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <utility>

namespace {

constexpr qint64 geduldMs = 200;

int tiefe = 0; ///< actions within actions
bool zeigt = false;
QElapsedTimer uhr;

void nimmZurück()
{
    if (std::exchange(zeigt, false)) {
        QGuiApplication::restoreOverrideCursor();
    }
}

} // namespace

namespace geduld {

Handlung::Handlung()
{
    if (tiefe++ == 0) {
        uhr.start();
    }
}

Handlung::~Handlung()
{
    if (--tiefe == 0) {
        nimmZurück();
    }
}

Pause::Pause() : m_tiefe(std::exchange(tiefe, 0))
{
    nimmZurück();
}

Pause::~Pause()
{
    tiefe = m_tiefe;
    uhr.start();
}

void prüfe()
{
    if (tiefe > 0 && !zeigt && uhr.elapsed() >= geduldMs) {
        zeigt = true;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

} // namespace geduld
