#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <string>

class QWidget;

/// The mark of a heading, by which links reach it: small letters, hyphens for blanks, no other signs.
QString markeVon(const QString& überschrift);
/// The folder with handbuch.md and its pictures: beside the program, or where a package of the system puts it.
QString handbuchordner();

/// The handbook, in a window of its own that F1 opens at the place that tells about the screen in use. It may stay
/// open beside the program: it takes nothing from the screens, which know nothing of it. Escape closes it.
class Handbuch : public QObject {
public:
    /// `bildschirm` names the screen in use (code page, "frmMemo").
    Handbuch(std::function<std::string()> bildschirm, QString ordner = handbuchordner());
    ~Handbuch() override;

    /// Opens it, or brings it to the front, at the heading with the mark; at the top where there is none.
    void öffneBei(const QString& marke);
    /// The window; nullptr before it was opened for the first time.
    QWidget* fenster() const;

    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    class Fenster;

    std::function<std::string()> m_bildschirm;
    QString m_ordner;
    std::unique_ptr<Fenster> m_fenster;
};
