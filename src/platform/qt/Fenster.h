#pragma once

#include <QMainWindow>

#include <functional>

class Ansicht;
class QScrollArea;
class QStackedWidget;

/// What the person does with a window; the windows themselves decide nothing.
struct Fensterereignisse {
    std::function<void(QPoint)> verschoben;
    std::function<void(QSize)> größeGeändert;
    std::function<void(bool)> maximiert;
    std::function<void()> schließwunsch;
    std::function<void()> aktiviert = {};
};

/// Tells a person's placing of a window from the program's own and from what the window manager makes of it.
class Platzwächter {
public:
    /// Runs the program's own placing.
    template <class F> void platziere(F placing)
    {
        ++m_eigene;
        placing();
        --m_eigene;
        beginneNachspiel();
    }
    /// `vomSystem`: the event came from the window system. For a moment after a placing that is its answer.
    bool istVomBenutzer(bool vomSystem) const;

private:
    void beginneNachspiel();

    int m_eigene = 0;
    qint64 m_nachspielBis = 0;
};

/// The frame: menu bar and pages.
class Rahmenfenster : public QMainWindow {
public:
    explicit Rahmenfenster(Fensterereignisse ereignisse);

    QStackedWidget& seiten() { return *m_seiten; }
    Platzwächter& platzwächter() { return m_platzwächter; }

protected:
    void moveEvent(QMoveEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    Fensterereignisse m_ereignisse;
    QStackedWidget* m_seiten;
    Platzwächter m_platzwächter;
};

/// The window of a screen that stands over another one: of fixed width, as high as its content.
class Kindfenster : public QWidget {
public:
    Kindfenster(Fensterereignisse ereignisse, int breite, QWidget* rahmen);

    void setzeSeite(QWidget& seite, QScrollArea& blatt);
    Platzwächter& platzwächter() { return m_platzwächter; }
    /// Takes the height that the content has now.
    void passeHöheAn();

protected:
    void moveEvent(QMoveEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    Fensterereignisse m_ereignisse;
    int m_breite;
    QWidget* m_seite = nullptr;
    QScrollArea* m_blatt = nullptr;
    Platzwächter m_platzwächter;
};

/// The place nearest to the wanted one that a screen of the desktop shows.
QPoint inDenSchirm(QPoint ort, QSize größe);
