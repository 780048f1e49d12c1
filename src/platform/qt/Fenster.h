#pragma once

#include "platform/bildschirm/Rahmen.h"
#include "platform/qt/Ansicht.h"

#include <QDeadlineTimer>
#include <QMainWindow>

#include <functional>

class QScrollArea;
class QStackedWidget;

/// Tells a person's placing of a window from the program's own and from what the window manager makes of it.
class Platzwächter {
public:
    /// Runs the program's own placing.
    template <class F> void platziere(F placing)
    {
        ++m_eigene;
        placing();
        --m_eigene;
        m_nachspiel.setRemainingTime(nachspielMs);
    }
    /// `vomSystem`: the event came from the window system. For a moment after a placing that is its answer.
    bool istVomBenutzer(bool vomSystem) const { return m_eigene == 0 && (!vomSystem || m_nachspiel.hasExpired()); }

private:
    static constexpr qint64 nachspielMs = 400;

    int m_eigene = 0;
    QDeadlineTimer m_nachspiel;
};

/// The frame: menu bar and pages. What the person does with it goes to `rahmen`.
class Rahmenfenster : public QMainWindow {
public:
    Rahmenfenster(Rahmen& rahmen, Bühne& bühne, std::function<void()> beiAktivierung);

    QStackedWidget& seiten() { return *m_seiten; }
    Platzwächter& platzwächter() { return m_platzwächter; }

protected:
    void moveEvent(QMoveEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    Rahmen& m_rahmen;
    Bühne& m_bühne;
    std::function<void()> m_beiAktivierung;
    QStackedWidget* m_seiten;
    Platzwächter m_platzwächter;
};

/// The window of a screen that stands over another one: of fixed width, as high as its content. Its border tells the
/// screen its place, and closes as the screen's Escape does.
class Kindfenster : public QWidget {
public:
    Kindfenster(Ansicht& ansicht, QWidget* rahmen);

    Platzwächter& platzwächter() { return m_platzwächter; }
    /// Takes the height that the content has now.
    void passeHöheAn();

protected:
    void moveEvent(QMoveEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    Ansicht& m_ansicht;
    QScrollArea* m_blatt = nullptr;
    Platzwächter m_platzwächter;
};

/// The place nearest to the wanted one that a screen of the desktop shows.
QPoint inDenSchirm(QPoint ort, QSize größe);
