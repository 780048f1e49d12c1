#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <string>

/// The mark of a heading, by which links reach it: small letters, hyphens for blanks, no other signs.
QString markeVon(const QString& überschrift);
/// The folder with handbuch.md and its pictures: beside the program, or where a package of the system puts it.
QString handbuchordner();

class Handbuchblatt;

/// The handbook: a window without a parent, so that it may lie behind the frame as well, which F1 opens at the place
/// that tells about the screen in use. It may stay open beside the program: it takes nothing from the screens, which
/// know nothing of it. Escape closes it.
class Handbuch : public QWidget {
public:
    /// `bildschirm` names the screen in use (code page, "frmMemo").
    Handbuch(std::function<std::string()> bildschirm, QString ordner = handbuchordner());

    /// Opens it, or brings it to the front, at the heading with the mark; at the top where there is none.
    void öffneBei(const QString& marke);

    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

protected:
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void baue();

    std::function<std::string()> m_bildschirm;
    QString m_ordner;
    Handbuchblatt* m_blatt = nullptr; ///< none before it was opened for the first time
    QPointer<QWidget> m_vorher;       ///< the window that was in use before
};
