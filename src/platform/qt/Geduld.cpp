#include "platform/qt/Geduld.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <utility>

namespace {

constexpr qint64 geduldMs = 200;

struct Stand {
    int tiefe = 0; ///< actions within actions
    bool zeigt = false;
    QElapsedTimer uhr;
};

Stand& stand()
{
    static Stand der;
    return der;
}

void nimmZurück()
{
    if (std::exchange(stand().zeigt, false)) {
        QGuiApplication::restoreOverrideCursor();
    }
}

} // namespace

namespace geduld {

Handlung::Handlung()
{
    if (stand().tiefe++ == 0) {
        stand().uhr.start();
    }
}

Handlung::~Handlung()
{
    if (--stand().tiefe == 0) {
        nimmZurück();
    }
}

Pause::Pause() : m_tiefe(std::exchange(stand().tiefe, 0))
{
    nimmZurück();
}

Pause::~Pause()
{
    stand().tiefe = m_tiefe;
    stand().uhr.start();
}

void prüfe()
{
    if (stand().tiefe > 0 && !stand().zeigt && stand().uhr.elapsed() >= geduldMs) {
        stand().zeigt = true;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

} // namespace geduld
