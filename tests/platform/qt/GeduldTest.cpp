#include "platform/qt/Geduld.h"

#include "platform/qt/Fortschritt.h"
#include "platform/qt/Probe.h"

#include <QGuiApplication>
#include <QThread>

namespace {

bool zeigtSanduhr()
{
    const auto* zeiger = QGuiApplication::overrideCursor();
    return zeiger != nullptr && zeiger->shape() == Qt::WaitCursor;
}

/// The action of a button that takes so long before it changes something, and what is seen then.
class Wartezeit : public Fensterprobe {
protected:
    bool sanduhrNach(unsigned long millisekunden)
    {
        bool gesehen = false;
        bildschirm->cmdOK.beiKlick = [&, millisekunden] {
            QThread::msleep(millisekunden);
            bildschirm->lblName.setzeText(std::to_string(millisekunden));
            gesehen = zeigtSanduhr();
        };
        klicke(bildschirm->cmdOK);
        return gesehen;
    }
};

TEST_F(Wartezeit, AnActionThatLastsShowsTheBusyCursor)
{
    öffne();
    EXPECT_FALSE(sanduhrNach(20));
    EXPECT_TRUE(sanduhrNach(250));
    EXPECT_FALSE(zeigtSanduhr()) << "after the action";
    EXPECT_FALSE(sanduhrNach(21));
}

TEST_F(Wartezeit, WhileABoxStandsItIsThePersonsTurn)
{
    öffne();
    bool inDerBox = true;
    bool danach = false;
    bildschirm->cmdOK.beiKlick = [&] {
        QThread::msleep(250);
        geduld::prüfe();
        {
            const geduld::Pause pause;
            inDerBox = zeigtSanduhr();
            QThread::msleep(250);
            geduld::prüfe();
            inDerBox = inDerBox || zeigtSanduhr();
        }
        geduld::prüfe();
        danach = zeigtSanduhr();
    };
    klicke(bildschirm->cmdOK);
    EXPECT_FALSE(inDerBox);
    EXPECT_FALSE(danach) << "the action begins anew behind the box";
    EXPECT_FALSE(zeigtSanduhr());
}

} // namespace
